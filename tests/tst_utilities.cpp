// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "tests/support/Files.h"
#include "tests/support/FolderLink.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QPalette>
#include <QSignalSpy>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QUrl>
#include <QWidget>
#include <QtTest>

#include <limits>

#ifdef Q_OS_WIN
#include <windows.h>

#include <dwmapi.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

const QString kConfiguration = "Corvane Video Editor/Resources/MotionKit";

void Write(const QString& path, const QByteArray& content)
{
    QVERIFY(SetContents(path, content));
}

QString Md5(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex();
}

} // namespace

class TestUtilities : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString Path(const QString& name) const { return m_folder->filePath(name); }

signals:
    void Opened(const QUrl& url);

public slots:
    void Open(const QUrl& url) { Q_EMIT Opened(url); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void fingerprint_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<quint64>("blockSize");
        QTest::addColumn<QList<int>>("blocks"); // by their starts; none for the whole file
        const auto row = [](const char* name, int size, quint64 blockSize,
                            const QList<int>& blocks) {
            QTest::newRow(name) << size << blockSize << blocks;
        };
        row("empty file", 0, 10, {});
        row("blocks of no size hold nothing", 52, 0, {0});
        row("as long as three blocks", 30, 10, {});
        row("a byte longer than three blocks", 31, 10, {0, 10, 20});
        row("gaps of a block", 50, 10, {0, 20, 40});
        row("gaps rounded down to a block", 51, 10, {0, 20, 40});
        row("large blocks", 900001, 200000, {0, 350000, 700000});
        row("three blocks overflow", 40, std::numeric_limits<quint64>::max() / 3 + 1, {});
    }
    void fingerprint()
    {
        QFETCH(int, size);
        QFETCH(quint64, blockSize);
        QFETCH(QList<int>, blocks);
        QByteArray content(size, 0);
        for (int i = 0; i < size; ++i)
            content[i] = static_cast<char>(i * 31 + i / 256);
        Write(Path("media"), content);
        QByteArray hashed = blocks.isEmpty() ? content : QByteArray();
        for (const int start : blocks)
            hashed += content.mid(start, static_cast<int>(blockSize));
        QCOMPARE(GetFileMd5(blockSize, Path("media")), Md5(hashed));

        QFile file(Path("media"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(1600000000123);
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        hashed += QByteArray::number(size) + "1600000000123";
        QCOMPARE(GetFileMd5_V2(blockSize, Path("media")), Md5(hashed));
    }

    void noFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << "missing";
        QTest::newRow("folder") << ".";
        QTest::newRow("no path") << QString();
#ifdef Q_OS_LINUX
        QTest::newRow("pipe") << "pipe";
        QTest::newRow("device without end") << "/dev/zero";
#endif
    }
    void noFile()
    {
        QFETCH(QString, name);
#ifdef Q_OS_LINUX
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
#endif
        const QString path = name.isEmpty() ? name : QDir(m_folder->path()).filePath(name);
        QTest::ignoreMessage(QtDebugMsg, "file open error.");
        QCOMPARE(GetFileMd5(10, path), QString());
        QCOMPARE(gGetStyleSheet(nullptr, path), QString());
    }

#ifdef Q_OS_LINUX
    // States a size that reading does not give, as a file does that shrinks meanwhile.
    void fileShorterThanItsSize()
    {
        QCOMPARE(GetFileMd5(4096, "/sys/kernel/uevent_seqnum"), QString());
    }
#endif

    void command_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("output");
        const auto row = [](const char* name, const QString& line, const QString& output) {
            QTest::newRow(name) << line << output;
        };
        row("missing program", "no-such-program-here", "");
        row("empty", " ", "");
#ifdef Q_OS_WIN
        // One line each: what a longer output gives depends on how its writes fall into reads.
        row("error output", "cmd /c echo b 1>&2", "b \r\n");
        row("narrow characters", "cmd /c echo \u00e4", "\u00e4\r\n");
#else
        row("words", "printf '[%s]' a  \"b  c\" 'd\\e' f\\ g '' h'i'\"j\"",
            "[a][b  c][d\\e][f g][][hij]");
        row("escapes", "printf %s \"\\a\\\\\\$\\\"\"\\'\\", "\\a\\$\"'\\");
        row("nothing expanded", "printf %s $HOME*~;|", "$HOME*~;|");
        row("open quote", "printf 'a", "");
        row("both outputs", "sh -c 'printf a; printf b >&2'", "ab");
        row("no input", "sh -c 'cat; echo end'", "end\n");
        row("up to a zero byte", "printf 'a\\0b'", "a");
        row("stale bytes", "sh -c 'printf 123456; sleep 0.3; printf ab'", "123456ab3456");
        row("pieces", "sh -c 'head -c 2046 /dev/zero | tr \\\\0 x; sleep 0.3; printf ab'",
            QString(2046, 'x') + "ab" + QString(2044, 'x'));
        // 3 is the listing itself
        row("only the pipe is inherited", "ls /proc/self/fd", "0\n1\n2\n3\n");
#endif
    }
    void command()
    {
        QFETCH(QString, line);
#ifdef Q_OS_LINUX
        const int open = ::fcntl(1, F_DUPFD, 20); // would be inherited
#endif
        QTEST(excuteCmd(nullptr, line), "output");
#ifdef Q_OS_LINUX
        ::close(open);
        QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1); // no child, living or dead
#endif
    }

    void removesTree()
    {
        Write(Path("tree/sub/file"), "x");
        RemoveDir(nullptr, Path("tree") + QDir::separator());
        QVERIFY(!QFile::exists(Path("tree")));
    }

    void removeLeavesHiddenFiles()
    {
        Write(Path("tree/shown"), "x");
        Write(Path("tree/.hidden"), "x");
#ifdef Q_OS_WIN
        SetFileAttributesW(Path("tree/.hidden").toStdWString().c_str(), FILE_ATTRIBUTE_HIDDEN);
#endif
        RemoveDir(nullptr, Path("tree"));
        QCOMPARE(QDir(Path("tree")).entryList(QDir::Files | QDir::Hidden), QStringList(".hidden"));
    }

    void removeMakesTheParentOfAMissingFolder()
    {
        RemoveDir(nullptr, Path("new/parent/of"));
        QVERIFY(QFileInfo(Path("new/parent")).isDir());
        QVERIFY(!QFile::exists(Path("new/parent/of")));
    }

    void removesLinks_data()
    {
        QTest::addColumn<QString>("link"); // to a folder outside
        QTest::addColumn<QString>("removed");
        QTest::newRow("in the tree") << "tree/link"
                                     << "tree";
        QTest::newRow("as the tree, with a delimiter") << "tree"
                                                       << "tree/";
    }
    void removesLinks()
    {
        QFETCH(QString, link);
        QFETCH(QString, removed);
        Write(Path("outside/kept"), "x");
        QVERIFY(QDir().mkpath(QFileInfo(Path(link)).path()));
        if (!LinkFolder(Path("outside"), Path(link)))
            QSKIP("no links to folders here");
        RemoveDir(nullptr, Path(removed));
        QCOMPARE(QDir(m_folder->path())
                     .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList("outside"));
        QVERIFY(QFile::exists(Path("outside/kept")));
    }

#ifndef Q_OS_WIN // where ".." is a matter of the text
    void removesWhatThePathLeadsTo()
    {
        QVERIFY(QDir().mkpath(Path("deep/inner")));
        QVERIFY(LinkFolder(Path("deep/inner"), Path("up")));
        Write(Path("deep/x"), "reached by way of the link");
        Write(Path("x"), "named by the text alone");
        RemoveDir(nullptr, Path("up/../x"));
        QVERIFY(!QFile::exists(Path("deep/x")));
        QVERIFY(QFile::exists(Path("x")));
    }
#endif

    void diskFreeSpace_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("folder") << "";
        QTest::newRow("file") << "file";
        QTest::newRow("folder that is not there yet") << "not/yet/there";
    }
    void diskFreeSpace()
    {
        QFETCH(QString, name);
        Write(Path("file"), "x");
        const auto expected = double(QStorageInfo(m_folder->path()).bytesFree()) / (1 << 20);
        const auto free = double(gGetDiskFreeSpace(nullptr, Path(name)));
        const QString values = QString("%1 MiB instead of %2").arg(free).arg(expected);
        // Others write to the disk meanwhile.
        QVERIFY2(qAbs(free - expected) < 0.05 * expected + 64, qPrintable(values));
    }

    void noDiskHasRoomForAll()
    {
        QCOMPARE(gGetDiskFreeSpace(nullptr, QString()), quint64(std::numeric_limits<int>::max()));
    }

    void webAddress()
    {
        QSignalSpy spy(this, &TestUtilities::Opened);
        QDesktopServices::setUrlHandler("https", this, "Open");
        QDesktopServices::setUrlHandler("http", this, "Open");
        gOpenUrl(nullptr, "https://a.test/x y");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such method"));
        QDesktopServices::setUrlHandler("https", this, "NoSuchSlot");
        gOpenUrl(nullptr, "https://a.test/?to=https://b.test");
        QCOMPARE(spy.size(), 2);
        QCOMPARE(spy[0][0].toUrl(), QUrl("https://a.test/x%20y"));
        QCOMPARE(spy[1][0].toUrl(), QUrl("http://a.test/?to=http://b.test"));
        QDesktopServices::unsetUrlHandler("https");
        QDesktopServices::unsetUrlHandler("http");
    }

    void configurationInTheNamedFolder()
    {
        qputenv("ProgramData", m_folder->path().toLocal8Bit());
        const QString folder = GetConfigfileDir();
        const QString settings = GetSettingFilePath();
        qunsetenv("ProgramData");
        QCOMPARE(folder, Path(kConfiguration));
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(settings, folder + "/Settings.xml");
    }

    void configurationInTheUsersFolder()
    {
        qputenv("XDG_DATA_HOME", Path("data").toLocal8Bit());
        const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
        QCOMPARE(GetConfigfileDir(), data.filePath(kConfiguration));
    }

    void settingsAreReplacedByEmptyOnes()
    {
        Write(Path("Settings.xml"), QByteArray(1000, 'x'));
        CreateSettingsFile(Path("Settings.xml"));
        QCOMPARE(gGetStyleSheet(nullptr, Path("Settings.xml")),
                 QString("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Settings/>\n"));
    }

    void styleSheetOfTheLibrary()
    {
        QVERIFY(!gGetStyleSheet(nullptr, ":/CommonLib/Resources/styles.qss").isEmpty());
    }

    void borderColor()
    {
        QCOMPARE(gGetBorderColor(true), QColor(0, 0, 0));
#ifdef Q_OS_WIN
        const auto now = QOperatingSystemVersion::current();
        QCOMPARE(gGetSystemBorder(), int(now >= QOperatingSystemVersion::Windows8));
        gInitBorderColor();
        DWORD color = 0;
        BOOL isOpaque = FALSE;
        if (SUCCEEDED(DwmGetColorizationColor(&color, &isOpaque)))
            QCOMPARE(gGetBorderColor(true).rgb(), color | 0xff000000);
#else
        QVERIFY(gIsAboveWin7Sys());
        QCOMPARE(gGetSystemBorder(), 1);
        QPalette palette;
        palette.setColor(QPalette::Highlight, QColor(1, 2, 3, 4));
        QGuiApplication::setPalette(palette);
        gInitBorderColor();
        QCOMPARE(gGetBorderColor(true), QColor(1, 2, 3, 255));
#endif
        QCOMPARE(gGetBorderColor(false), QColor(42, 52, 63, 255));
    }

    void registeredWindows()
    {
        QWidget main, matter, player;
        gSetMainWindow(nullptr, &main);
        gSetMatterView(nullptr, &matter);
        gSetPlayerView(nullptr, &player);
        QCOMPARE(gGetMainWindow(), &main);
        QCOMPARE(gGetMatterView(), &matter);
        QCOMPARE(gGetPlayerView(), &player);
    }
};

QTEST_MAIN(TestUtilities)

#include "tst_utilities.moc"
