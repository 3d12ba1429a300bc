// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/FileOperation.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/RegexOperation.h"
#include "CommonLib/StringOperation.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QUuid>
#include <QtTest>

namespace {

QString Native(QString path)
{
    return path.replace('\\', QDir::separator());
}

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

} // namespace

class TestOperations : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString Path(const QString& name) const { return m_folder->filePath(name); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // A backslash in a row stands for the native separator.
    void pathTexts_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("slashed");
        QTest::addColumn<QString>("excluded");
        QTest::addColumn<QString>("folder");
        QTest::newRow("no end") << "C:\\data"
                                << "C:\\data\\"
                                << "C:\\data"
                                << "C:";
        QTest::newRow("native end") << "C:\\data\\"
                                    << "C:\\data\\"
                                    << "C:\\data"
                                    << "C:\\data";
        QTest::newRow("file") << "C:\\a\\b.txt"
                              << "C:\\a\\b.txt\\"
                              << "C:\\a\\b.txt"
                              << "C:\\a";
        QTest::newRow("mixed") << "C:/a\\b"
                               << "C:/a\\b\\"
                               << "C:/a\\b"
                               << "C:/a";
        QTest::newRow("name alone") << "b.txt"
                                    << "b.txt\\"
                                    << "b.txt"
                                    << "";
        QTest::newRow("separator alone") << "\\"
                                         << "\\\\"
                                         << "\\"
                                         << "";
        QTest::newRow("empty") << ""
                               << "\\"
                               << ""
                               << "";
#ifdef Q_OS_WIN
        QTest::newRow("slash end") << "C:/data/"
                                   << "C:/data/\\"
                                   << "C:/data/"
                                   << "C:/data";
#endif
    }
    void pathTexts()
    {
        QFETCH(QString, path);
        QFETCH(QString, slashed);
        QFETCH(QString, excluded);
        QFETCH(QString, folder);
        QCOMPARE(PathOperation::Slash(Native(path)), Native(slashed));
        QCOMPARE(PathOperation::ExcludeTrailingPathDelimiter(Native(path)), Native(excluded));
        QCOMPARE(PathOperation::ExtractFilePath(Native(path)), Native(folder));
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("expected"); // name, base, suffix, folder, made, replaced
        QTest::newRow("two dots") << "/d.x/a.b.c"
                                  << QStringList{"a.b.c", "a", "c", "/d.x/", "a_1.c", "/d.x\\a.z"};
        QTest::newRow("no suffix") << "/d/a" << QStringList{"a", "a", "", "/d/", "a_1.", "/d\\a.z"};
        QTest::newRow("name alone")
            << "a.c" << QStringList{"a.c", "a", "c", "./", "a_1.c", "\\a.z"};
        QTest::newRow("in the root")
            << "/a.c" << QStringList{"a.c", "a", "c", "/", "a_1.c", "\\a.z"};
    }
    void fileNames()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, expected);
        const QStringList got = {
            FileOperation::GetFileName(path),        FileOperation::GetFileBaseName(path),
            FileOperation::GetFileSuffixName(path),  FileOperation::GetFileDir(path),
            FileOperation::MakeFileName(path, "_1"), FileOperation::RepalceSuffixName(path, ".z")};
        expected.last() = Native(expected.last());
        QCOMPARE(got, expected);
        QCOMPARE(FileOperation::AppendFileNameSuffix(path, "_1"),
                 PathOperation::Slash(QFileInfo(path).absolutePath()) + expected[4]);
    }

    void createsAndDeletes()
    {
        const QString path = Path("a");
        QVERIFY(FileOperation::DeleteFileW(path));
        FileOperation::CreateNewFile(path);
        QCOMPARE(Read(path), QByteArray());
        Write(path, "kept");
        FileOperation::CreateNewFile(path);
        QCOMPARE(Read(path), QByteArray("kept"));
        QVERIFY(FileOperation::IsFileExist(QStringList()));
        QVERIFY(FileOperation::IsFileExist({path, m_folder->path()}));
        QVERIFY(!FileOperation::IsFileExist({path, Path("b")}));
        QVERIFY(!FileOperation::RemoveFile(m_folder->path()));
        QVERIFY(FileOperation::RemoveFile(path));
        QVERIFY(!FileOperation::IsFileExist(path));
    }

    void copies()
    {
        QVERIFY(PathOperation::ForceDir(Path("to")));
        Write(Path("a"), "new");
        Write(Path("to/a"), "old");
        QVERIFY(FileOperation::CopyFiles({Path("a")}, Path("to")));
        QCOMPARE(Read(Path("to/a")), QByteArray("new"));
        QVERIFY(FileOperation::CopyFiles({}, Path("to")));
        Write(Path("b"), "b");
        QVERIFY(!FileOperation::CopyFiles({Path("missing"), Path("b")}, Path("to")));
        QVERIFY(!QFile::exists(Path("to/b")));
        QVERIFY(!FileOperation::CopyOneFile(Path("a"), Path("to/../a")));
        QVERIFY(!FileOperation::CopyFileW(Path("a"), m_folder->path()));
        QCOMPARE(Read(Path("a")), QByteArray("new"));
    }

    void textFiles()
    {
        const QString text = QString::fromUtf8("ä\n€\r\n");
        const QString path = Path("t");
        FileOperation::WriteFile(path, text, true);
        QCOMPARE(Read(path), QByteArray("ä\n€\r\n"));
        QCOMPARE(FileOperation::ReadFile(path, true), text);
        QCOMPARE(FileOperation::ReadTextFile(path, true), QString::fromUtf8("ä\n€\n"));
        QVERIFY(FileOperation::WriteTextFile(path, "a\n", false));
#ifdef Q_OS_WIN
        QCOMPARE(Read(path), QByteArray("a\r\n"));
#else
        QCOMPARE(Read(path), QByteArray("a\n"));
#endif
        QVERIFY(!FileOperation::WriteTextFile(Path("no/t"), text, true));
        QCOMPARE(FileOperation::ReadFile(Path("no"), true), QString());
    }

    void md5_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("expected");
        QTest::newRow("missing") << -1 << "";
        QTest::newRow("empty") << 0 << "d41d8cd98f00b204e9800998ecf8427e";
        // Figures of the md5sum program for that many letters "a".
        QTest::newRow("one block") << 10240 << "416671d9da6b155c340c93ca08845194";
        QTest::newRow("a block and a byte") << 10241 << "cf220cd1faa6342f6b4eae5962a8782a";
    }
    void md5()
    {
        QFETCH(int, size);
        QFETCH(QString, expected);
        if (size >= 0)
            Write(Path("f"), QByteArray(size, 'a'));
        QCOMPARE(FileOperation::CalcFileMD5(Path("f")), expected);
    }

    void forcesFolders()
    {
        const QString deep = Native(Path("a") + "\\b\\c\\");
        QCOMPARE(PathOperation::CheckDir(deep), deep);
        QVERIFY(QFileInfo(deep).isDir());
        QVERIFY(!PathOperation::ForceDir(""));
        QVERIFY(!PathOperation::ForceDir("no such folder and no delimiter"));
        Write(Path("file"), "");
        QCOMPARE(PathOperation::CheckDir(Path("file/a")), QString());
    }

    void listsFiles()
    {
        QDir(m_folder->path()).mkdir("Bc.tmp");
        for (const char* name : {"b.tmp", "a.TMP", "c.txt", ".hidden.tmp"})
            Write(Path(name), "");
        const QString folder = m_folder->path();
        const QStringList expected = {"a.TMP", "b.tmp", "Bc.tmp"};
        QCOMPARE(PathOperation::GetFileList(folder, {"*.tmp"}, false), expected);
        QCOMPARE(PathOperation::GetFileList(folder, {"c*"}, true),
                 QStringList(PathOperation::Slash(folder) + "c.txt"));
        QVERIFY(PathOperation::GetFileList(folder, {"*"}, false).contains(".."));
        QCOMPARE(PathOperation::GetFileList(folder, {}, false).size(), 6);
    }

    void removesFolders_data()
    {
        QTest::addColumn<bool>("removeSelf");
        QTest::addColumn<QStringList>("patterns");
        QTest::addColumn<bool>("withLink");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("left"); // in the folder; "-" when it is gone itself
        const QStringList temporary = {"*.tmp"};
        QTest::newRow("everything") << true << QStringList() << false << true << "-";
        QTest::newRow("content") << false << QStringList() << false << true << "";
        QTest::newRow("patterns") << true << temporary << false << false << "full";
        QTest::newRow("patterns, content") << false << temporary << false << false << "full";
        QTest::newRow("links stay") << true << QStringList() << true << false << "link";
        QTest::newRow("links stay, content") << false << QStringList() << true << true << "link";
    }
    void removesFolders()
    {
        QFETCH(bool, removeSelf);
        QFETCH(QStringList, patterns);
        QFETCH(bool, withLink);
        QFETCH(QString, left);
        QVERIFY(QDir(m_folder->path()).mkpath("top/full/deep") &&
                QDir(m_folder->path()).mkpath("top/.hollow") &&
                QDir(m_folder->path()).mkpath("outside"));
        for (const char* name : {"top/.a.tmp", "top/full/b.tmp", "top/full/keep", "outside/c.tmp"})
            Write(Path(name), "");
        if (withLink && !QFile::link(Path("outside"), Path("top/link")))
            QSKIP("no symbolic links here");
        QTEST(PathOperation::RemoveDirectoryrecursive(Path("top"), removeSelf, patterns), "result");
        const QDir top(Path("top"));
        const QStringList entries =
            top.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        QCOMPARE(top.exists() ? entries.join(' ') : QString("-"), left);
        QVERIFY(QFile::exists(Path("outside/c.tmp")));
    }

    void removesNothingWithoutAPath()
    {
        const QString current = QDir::currentPath();
        Write(Path("a"), "");
        QDir::setCurrent(m_folder->path());
        const bool result = PathOperation::RemoveDirectoryrecursive("", false, {});
        QDir::setCurrent(current);
        QVERIFY(!result && QFile::exists(Path("a")));
    }

    void choosesFolder()
    {
        for (const bool accept : {true, false}) {
            QTimer::singleShot(0, this, [&] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                QCOMPARE(dialog->windowTitle(), QString("Choose"));
                dialog->selectFile(m_folder->path());
                accept ? static_cast<QDialog*>(dialog)->accept() : dialog->reject();
            });
            QCOMPARE(PathOperation::GetUserSelectDir("Choose", 0),
                     accept ? m_folder->path() : QString());
        }
    }

    void numbersAndTexts()
    {
        QCOMPARE(StringOperation::StrToInt("12a", 7), 7);
        QCOMPARE(StringOperation::StrToInt("42", 7), 42);
        QCOMPARE(StringOperation::StrToInt("2147483648", 7), 7);
        QCOMPARE(StringOperation::StrToInt("0x10", 7), 7);
        QVERIFY(StringOperation::SameText("straÄe", "STRAäE"));
        QVERIFY(!StringOperation::SameText("a", "ab"));
        QCOMPARE(StringOperation::CreateUUID(false).size(), 38);
        QCOMPARE(StringOperation::CreateUUID(true).size(), 36);
        QVERIFY(!QUuid(StringOperation::CreateUUID(true)).isNull());
    }

    void menuTexts_data()
    {
        QTest::addColumn<QString>("right");
        QTest::addColumn<int>("width");
        QTest::addColumn<qreal>("letterSpacing");
        QTest::newRow("no right text") << "" << 500 << 0.0;
        QTest::newRow("room") << "Ctrl+O" << 500 << 0.0;
        QTest::newRow("one pixel too little") << "Ctrl+O" << -1 << 0.0;
        QTest::newRow("no room") << "Ctrl+O" << 10 << 0.0;
        QTest::newRow("spaces without width") << "Ctrl+O" << 500 << -100.0;
    }
    void menuTexts()
    {
        QFETCH(QString, right);
        QFETCH(int, width);
        QFETCH(qreal, letterSpacing);
        QFont font;
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
        const QFontMetrics metrics(font);
        const int texts = metrics.horizontalAdvance("Open") + metrics.horizontalAdvance(right);
        if (width < 0)
            width = texts + 1;
        // The padding found one space at a time.
        QString pad;
        while (!right.isEmpty() && letterSpacing == 0 &&
               texts + metrics.horizontalAdvance(pad) < width)
            pad += ' ';
        QCOMPARE(StringOperation::GetMenuStringW(font, "Open", right, width), "Open" + pad + right);
    }

    void wrapsWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fits"); // the widest line; empty for no width at all
        QTest::addColumn<QString>("expected");
        QTest::newRow("one line") << "aaa bbb"
                                  << "aaa bbb ccc"
                                  << "aaa bbb";
        QTest::newRow("three lines") << "aaa bbb ccc"
                                     << "aaa b"
                                     << "aaa \nbbb \nccc";
        QTest::newRow("has a break") << "aaa bbb\nccc"
                                     << "aaa b"
                                     << "aaa bbb\nccc";
        QTest::newRow("no width") << "aa bb"
                                  << ""
                                  << "aa \nbb";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }
    void wrapsWords()
    {
        QFETCH(QString, text);
        QFETCH(QString, fits);
        QLabel label;
        const int width = StringOperation::GetTextTrueLenght(label.font(), fits);
        if (!text.contains('\n')) {
            QTest::ignoreMessage(QtDebugMsg, qPrintable("before: " + text));
        }
        QTEST(StringOperation::Format2WordWrapString(text, label.font(), width), "expected");
        if (width > 0) {
            label.setFixedWidth(width);
            QTEST(StringOperation::FormatWordWrapString(text, &label), "expected");
        }
    }

    void findsByPattern_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("expected"); // "old" when nothing is found
        QTest::newRow("first match") << "(\\d+)px"
                                     << "12";
        QTest::newRow("case counts") << "(\\d+)PX"
                                     << "old";
        QTest::newRow("no group") << "px"
                                  << "";
        QTest::newRow("malformed") << "(px"
                                   << "old";
    }
    void findsByPattern()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, expected);
        QString output = "old";
        QCOMPARE(RegexOperation::RegexFindString("w 12px h 34px", pattern, output),
                 expected != "old");
        QCOMPARE(output, expected);
    }
};

QTEST_MAIN(TestOperations)
#include "tst_operations.moc"
