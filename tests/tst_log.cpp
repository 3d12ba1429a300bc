// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseLog.h"
#include "tests/support/FileSizeLimit.h"

#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <windows.h>
#endif

namespace {

#ifdef Q_OS_WIN
constexpr bool kSharesFiles = true;
#else
constexpr bool kSharesFiles = false; // a path and an open file have nothing to do with each other
#endif
constexpr qint64 kRotationSize = qint64(50) * 1024 * 1024;
constexpr int kLongestLine = 2047;
constexpr int kStampLength = sizeof("[2026-03-07 09:05:01]") - 1;

struct Releaser
{
    void operator()(BaseLog* log) const { log->Release(); }
};
using Log = std::unique_ptr<BaseLog, Releaser>;

int Init(const Log& log, const QString& path, bool echo = false, int level = LogLevelAll)
{
    return log->Init(QFile::encodeName(path).constData(), echo, level);
}

Log OpenLog(const QString& path, int level = LogLevelAll)
{
    Log log(CreateLogInstance());
    return Init(log, path, false, level) == 0 ? std::move(log) : Log();
}

// A file's content without the zeros of a sparse start.
QByteArray Content(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QByteArray all = file.readAll();
    const auto text = std::find_if(all.cbegin(), all.cend(), [](char c) { return c != 0; });
    return all.mid(int(text - all.cbegin()));
}

bool MakeSparse(const QString& path, qint64 size)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.resize(size);
}

void Say(const Log& log, const char* message)
{
    log->LogInfo("F.cpp", "C::F", 1, "%s", message);
}

} // namespace

class TestLog : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;

    QStringList Names() const { return QDir(m_folder->path()).entryList(QDir::Files); }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/tst_log-XXXXXX");
        m_path = m_folder->filePath("app.log");
    }

    void dropsWhatComesBeforeItOpens()
    {
        const Log log(CreateLogInstance());
        Say(log, "too early");
        QCOMPARE(Init(log, m_path), 0);
        QCOMPARE(Content(m_path), QByteArray());
    }

    void reportsWhyItDoesNotOpen()
    {
        const Log log(CreateLogInstance());
        QCOMPARE(log->Init(nullptr, false, 0), 1);
        QCOMPARE(Init(log, m_folder->path()), 27);
        QCOMPARE(Names(), QStringList());
        QCOMPARE(Init(log, m_path), 0);
        QCOMPARE(Init(log, m_folder->filePath("b.log")), 23);
        Say(log, "in the first");
        QCOMPARE(Names(), QStringList("app.log"));
        QVERIFY(Content(m_path).contains("in the first"));
    }

    void hasItsFileAlone()
    {
        Log log = OpenLog(m_path);
        QVERIFY(!OpenLog(m_path));
        log.reset();
        QVERIFY(OpenLog(m_path));
    }

    void keepsWhatTheFileHolds()
    {
        MakeSparse(m_path, 1);
        Say(OpenLog(m_path), "first");
        QVERIFY(Content(m_path).endsWith("first - [F.cpp(1)]\r\n"));
        QVERIFY(QFileInfo(m_path).size() > Content(m_path).size());
    }

    void writesLine_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QByteArray>("printedMessage");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("printedFile");
        QTest::addColumn<QByteArray>("function");
        const auto row = [](const char* name, const QByteArray& message,
                            const QByteArray& printedMessage, const QByteArray& file = "C.src",
                            const QByteArray& printedFile = "C.src",
                            const QByteArray& function = "C::F") {
            QTest::newRow(name) << message << printedMessage << file << printedFile << function;
        };
        const auto m = [](int n) { return QByteArray(n, 'm'); };
        const QByteArray cut = m(1850) + "... Log Info Length Over Size.";
        row("per cent sign", "begin %", "begin %");
        row("all empty", "", "", "", "", "");
        row("longest message", m(1900), m(1900));
        row("message one byte too long", m(1901), cut);
        row("message longer than any buffer", m(12000), cut);
        row("line over its limit", m(1900), m(1900), m(300), m(255), m(300));
        row("limit within the line end", m(1900), m(1900), m(101), m(101), "F");
        row("folders before backslashes", "x", "x", "C:\\src\\lib\\Foo.src", "Foo.src");
        row("folders before slashes", "x", "x", "/src/Foo.src", "/src/Foo.src");
        row("path cut before its folder is", "x", "x", "a\\" + m(300), m(253));
    }
    void writesLine()
    {
        QFETCH(QByteArray, message);
        QFETCH(QByteArray, printedMessage);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, printedFile);
        QFETCH(QByteArray, function);
        const Log log = OpenLog(m_path);
        Say(log, QByteArray(20000, 'x').constData()); // leaves nothing behind in the buffer
        const int before = Content(m_path).size();
        log->LogWarn(file.constData(), function.constData(), -212, "%s", message.constData());
        const QByteArray whole =
            "-WARN- [" + function + "]:  " + printedMessage + " - [" + printedFile + "(-212)]\r\n";
        QCOMPARE(Content(m_path).mid(before + kStampLength),
                 whole.left(kLongestLine - kStampLength));
    }

    void stampsLineWithTheTime()
    {
        // Whole seconds, of a clock that may lag by a tick.
        const QDateTime start = QDateTime::currentDateTime().addSecs(-2);
        Say(OpenLog(m_path), "x");
        const QByteArray stamp = Content(m_path).left(kStampLength);
        const auto time = QDateTime::fromString(stamp, "[yyyy-MM-dd HH:mm:ss]");
        QVERIFY2(time >= start, stamp.constData());
        QVERIFY2(time <= QDateTime::currentDateTime(), stamp.constData());
    }

    void keepsThreshold_data()
    {
        QTest::addColumn<int>("threshold");
        QTest::addColumn<QString>("levels");
        QTest::newRow("below all") << LogLevelAll - 3 << "DEBUG INFO WARN ERROR";
        QTest::newRow("lowest level") << int(LogLevelDebug) << "DEBUG INFO WARN ERROR";
        QTest::newRow("level between") << int(LogLevelWarn) << "WARN ERROR";
        QTest::newRow("above off") << LogLevelOff + 4 << "";
    }
    void keepsThreshold()
    {
        QFETCH(int, threshold);
        const Log log = OpenLog(m_path, threshold);
        log->LogDebug("F", "F", 1, "x");
        log->LogInfo("F", "F", 1, "x");
        log->LogWarn("F", "F", 1, "x");
        log->LogError("F", "F", 1, "x");
        QStringList levels;
        for (const QByteArray& line : Content(m_path).split('\n'))
            levels += QString(line).section('-', 3, 3);
        QTEST(levels.join(' ').trimmed(), "levels");
    }

    void rotatesFullFile()
    {
        QDir(m_folder->path()).mkdir("logs.old");
        const QString path = m_folder->filePath("logs.old/app.log");
        QVERIFY(MakeSparse(path, kRotationSize));
        Say(OpenLog(path), "x");
        const QString rotated = Names().join('|');
        // The path up to its first dot.
        const QRegularExpression name("^logs(_\\d{4}(_\\d\\d){5})\\.tx$");
        QVERIFY2(name.match(rotated).hasMatch(), qPrintable(rotated));
        QCOMPARE(QFileInfo(m_folder->filePath(rotated)).size(), kRotationSize);
        QCOMPARE(Content(path).count('\n'), 1);
    }

    void goesOnInOtherFiles_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::newRow("a byte less than full") << kRotationSize - 1;
        QTest::newRow("little in the low 32 bits, which alone count") << (qint64(1) << 32) + 10;
    }
    void goesOnInOtherFiles()
    {
        QFETCH(qint64, size);
        QVERIFY(MakeSparse(m_path, size));
        Say(OpenLog(m_path), "x");
        QCOMPARE(Names(), QStringList("app.log"));
        QVERIFY(QFileInfo(m_path).size() > size);
    }

    void losesNothingWhenRotatingTwiceInASecond()
    {
        for (int i = 0; i < 6; ++i) {
            MakeSparse(m_path, QFileInfo(m_path).size() + kRotationSize);
            Say(OpenLog(m_path), (QByteArray::number(i) + "!").constData());
        }
        QVERIFY(Names().size() > 1);
        QByteArray all;
        for (const QString& name : Names())
            all += Content(m_folder->filePath(name));
        for (int i = 0; i < 6; ++i)
            QCOMPARE(all.count("  " + QByteArray::number(i) + "! - "), 1);
    }

    void keepsEveryLineUnderFire()
    {
        constexpr int kThreads = 8;
        constexpr int kLines = 100000;
        MakeSparse(m_path, kRotationSize - 1000000);
        const Log log = OpenLog(m_path);
        std::vector<std::thread> threads;
        for (int t = 0; t < kThreads; ++t) {
            threads.emplace_back([&log, t] {
                for (int i = 0; i < kLines; ++i)
                    log->LogInfo("F.cpp", "C::F", t, "%d %0100d", i, i);
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(Names().size() > 1);

        QStringList names = Names();
        names.append(names.takeAt(names.indexOf("app.log"))); // the rotated ones sort by time
        QByteArray all;
        for (const QString& name : names)
            all += Content(m_folder->filePath(name));
        int next[kThreads] = {};
        for (int start = 0, end = 0; (end = all.indexOf('\n', start)) >= 0; start = end + 1) {
            const QByteArray line = all.mid(start, end + 1 - start).mid(kStampLength);
            int i = -1, again = -1, t = -1;
            const char* format = "-INFO- [C::F]:  %d %d - [F.cpp(%d)]\r\n";
            const int fields = std::sscanf(line.constData(), format, &i, &again, &t);
            if (fields != 3 || i != again || t < 0 || t >= kThreads || next[t]++ != i)
                QFAIL(line.constData());
        }
        for (const int count : next)
            QCOMPARE(count, kLines);
    }

    // Where files are shared, only for reading.
    void sharesItsFile()
    {
        const Log log = OpenLog(m_path);
        QFile writer(m_path);
        QCOMPARE(writer.open(QIODevice::ReadWrite), !kSharesFiles);
        QCOMPARE(QFile::remove(m_path), !kSharesFiles);
        Say(log, "into the void");
        QCOMPARE(QFile::exists(m_path), kSharesFiles);
        QCOMPARE(Content(m_path).count('\n'), int(kSharesFiles));
    }

    void takesNarrowPath()
    {
        const QString path = m_folder->filePath(QString::fromUtf8("\u00e4.log"));
        Log log(CreateLogInstance());
        QCOMPARE(log->Init(path.toLocal8Bit().constData(), false, 0), 0);
        QVERIFY(QFile::exists(path));
    }

    void survivesFullDisk()
    {
        const Log log = OpenLog(m_path);
        {
            const FileSizeLimit full(1000);
            for (int i = 0; i < 100; ++i)
                Say(log, "lost sooner or later");
        }
        QVERIFY(QFileInfo(m_path).size() > 500 && QFileInfo(m_path).size() <= 1000);
        Say(log, "there is room again");
        QVERIFY(Content(m_path).endsWith("there is room again - [F.cpp(1)]\r\n"));
    }

#ifdef Q_OS_WIN
    void goesOnWhenItCannotRename()
    {
        MakeSparse(m_path, kRotationSize);
        const HANDLE reader =
            CreateFileW(m_path.toStdWString().c_str(), GENERIC_READ,
                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        {
            const Log log = OpenLog(m_path);
            Say(log, "one");
            Say(log, "two");
        }
        CloseHandle(reader);
        QCOMPARE(Names(), QStringList("app.log"));
        QCOMPARE(Content(m_path).count('\n'), 2);
    }
#endif

#ifdef Q_OS_UNIX
    void refusesFifoAtOnce()
    {
        QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
        QVERIFY(!OpenLog(m_path));
    }

    void keepsTheStandardStreamsApart()
    {
        std::fflush(stdout);
        const int savedInput = ::dup(STDIN_FILENO);
        const int savedOutput = ::dup(STDOUT_FILENO);
        const QString echoPath = m_folder->filePath("echo");
        const int echo = ::open(QFile::encodeName(echoPath).constData(), O_WRONLY | O_CREAT, 0600);
        ::dup2(echo, STDOUT_FILENO);
        ::close(STDIN_FILENO);
        const Log log(CreateLogInstance());
        Init(log, m_path, true);
        Say(log, "shown");
        const bool isInputFree = ::fcntl(STDIN_FILENO, F_GETFD) == -1;
        ::dup2(savedInput, STDIN_FILENO);
        ::dup2(savedOutput, STDOUT_FILENO);
        for (const int descriptor : {savedInput, savedOutput, echo})
            ::close(descriptor);
        QVERIFY(isInputFree);
        QVERIFY(Content(m_path).contains("shown"));
        QCOMPARE(Content(echoPath), Content(m_path));
    }

    void goesOnInAReadOnlyFolder()
    {
        // Root may write anywhere, so give the folder to somebody who may not.
        const bool isRoot = ::geteuid() == 0;
        const uid_t nobody = 65534;
        const QByteArray folder = QFile::encodeName(m_folder->path());
        if (isRoot)
            QVERIFY(::chown(folder.constData(), nobody, nobody) == 0 && ::seteuid(nobody) == 0);
        {
            const Log log = OpenLog(m_path);
            ::chmod(folder.constData(), 0500);
            MakeSparse(m_path, kRotationSize);
            Say(log, "one");
            Say(log, "two");
        }
        ::chmod(folder.constData(), 0700);
        if (isRoot)
            QCOMPARE(::seteuid(0), 0);
        QCOMPARE(Names(), QStringList("app.log"));
        QCOMPARE(Content(m_path).count('\n'), 2);
    }
#endif
};

QTEST_GUILESS_MAIN(TestLog)
#include "tst_log.moc"
