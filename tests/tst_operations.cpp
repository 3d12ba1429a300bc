// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/FileOperation.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/RegexOperation.h"
#include "CommonLib/StringOperation.h"
#include "tests/support/Files.h"
#include "tests/support/FolderLink.h"

#include <QtTest>
#include <QtWidgets>

#ifdef Q_OS_WIN
#include <windows.h>

#include <shlobj.h>
#else
#include <sys/stat.h>
#endif

namespace {

// A backslash stands for the native separator.
QString Native(QString path)
{
    return path.replace('\\', QDir::separator());
}

#ifdef Q_OS_WIN
BOOL CALLBACK FindPrompt(HWND child, LPARAM prompt)
{
    wchar_t text[100] = {};
    GetWindowTextW(child, text, 100);
    auto& wanted = *reinterpret_cast<QString*>(prompt);
    if (QString::fromWCharArray(text) != wanted)
        return TRUE;
    wanted.clear();
    return FALSE;
}

// Answers the system's folder dialog with that prompt; false when there is none yet.
bool AnswerDialog(QString prompt, const QString& folder, bool accept)
{
    const HWND dialog = FindWindowW(L"#32770", nullptr);
    EnumChildWindows(dialog, FindPrompt, reinterpret_cast<LPARAM>(&prompt));
    // Its folders are filled in before it shows.
    if (!dialog || !prompt.isEmpty() || !IsWindowVisible(dialog))
        return false;
    const std::wstring path = QDir::toNativeSeparators(folder).toStdWString();
    SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
    PostMessageW(dialog, WM_COMMAND, accept ? IDOK : IDCANCEL, 0);
    return true;
}
#else
bool AnswerDialog(const QString& title, const QString& folder, bool accept)
{
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->windowTitle() != title)
        return false;
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder); // as typed
    accept ? static_cast<QDialog*>(dialog)->accept() : dialog->reject();
    return true;
}
#endif

} // namespace

class TestOperations : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString Path(const QString& name) const { return m_folder->filePath(name); }
    void Write(const QString& name, const QByteArray& content) const
    {
        QVERIFY(SetContents(Path(name), content));
    }
    QByteArray Read(const QString& name) const
    {
        return QFileInfo::exists(Path(name)) ? Contents(Path(name)) : QByteArray("not there");
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void pathTexts_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("slashed");
        QTest::addColumn<QString>("excluded");
        QTest::addColumn<QString>("folder");
        const auto row = [](const char* name, const char* path, const char* slashed,
                            const char* excluded, const char* folder) {
            QTest::newRow(name) << Native(path) << Native(slashed) << Native(excluded)
                                << Native(folder);
        };
        row("no delimiter at the end", "C:\\data", "C:\\data\\", "C:\\data", "C:");
        row("delimiter at the end", "C:\\data\\", "C:\\data\\", "C:\\data", "C:\\data");
        row("both delimiters", "C:/a\\b", "C:/a\\b\\", "C:/a\\b", "C:/a");
        row("name alone", "b.txt", "b.txt\\", "b.txt", "");
        row("delimiter alone", "\\", "\\\\", "\\", "");
        row("empty", "", "\\", "", "");
#ifdef Q_OS_WIN
        row("other delimiter at the end", "C:/data/", "C:/data/\\", "C:/data/", "C:/data");
#endif
    }
    void pathTexts()
    {
        QFETCH(QString, path);
        QTEST(PathOperation::Slash(path), "slashed");
        QTEST(PathOperation::ExcludeTrailingPathDelimiter(path), "excluded");
        QTEST(PathOperation::ExtractFilePath(path), "folder");
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("made");
        QTest::addColumn<QString>("replaced");
        const auto row = [](const char* name, const char* path, const char* directory,
                            const char* made, const char* replaced) {
            QTest::newRow(name) << QString(path) << QString(directory) << QString(made)
                                << Native(replaced);
        };
        row("two dots, and one in the folder", "/d.x/a.b.c", "/d.x/", "a_1.c", "/d.x\\a.z");
        row("no dot", "/d/a", "/d/", "a_1.", "/d\\a.z");
        row("no folder", "a.c", "./", "a_1.c", "\\a.z");
        row("root folder", "/a.c", "/", "a_1.c", "\\a.z");
    }
    void fileNames()
    {
        QFETCH(QString, path);
        QFETCH(QString, made);
        QTEST(FileOperation::GetFileDir(path), "directory");
        QCOMPARE(FileOperation::MakeFileName(path, "_1"), made);
        QTEST(FileOperation::RepalceSuffixName(path, ".z"), "replaced");
        const QString folder = PathOperation::Slash(QFileInfo(path).absolutePath());
        QCOMPARE(FileOperation::AppendFileNameSuffix(path, "_1"), folder + made);
    }

    void createsFileUnlessItIsThere()
    {
        FileOperation::CreateNewFile(Path("a"));
        QCOMPARE(Read("a"), QByteArray());
        Write("a", "kept");
        FileOperation::CreateNewFile(Path("a"));
        QCOMPARE(Read("a"), QByteArray("kept"));
    }

    void listExistsWhenAllOfItDoes()
    {
        Write("a", "");
        QVERIFY(FileOperation::IsFileExist(QStringList()));
        QVERIFY(!FileOperation::IsFileExist({Path("a"), Path("b")}));
    }

    void removesFile()
    {
        Write("a", "");
        QVERIFY(FileOperation::RemoveFile(Path("a")));
        QVERIFY(!FileOperation::IsFileExist(Path("a")));
        QVERIFY(FileOperation::DeleteFileW(Path("a"))); // nothing is there
        QVERIFY(!FileOperation::RemoveFile(m_folder->path()));
    }

    void numbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected"); // 7 where there is none
        QTest::newRow("negative") << "-12" << -12;
        QTest::newRow("letter behind") << "12a" << 7;
        QTest::newRow("beyond 31 bits") << "2147483648" << 7;
        QTest::newRow("hexadecimal") << "0x10" << 7;
        QTest::newRow("empty") << "" << 7;
    }
    void numbers()
    {
        QFETCH(QString, text);
        QTEST(StringOperation::StrToInt(text, 7), "expected");
    }

    void identifierWithoutBraces()
    {
        QCOMPARE(StringOperation::CreateUUID(true).size(), QUuid().toString().size() - 2);
    }

    void copiesOverAnOldFile()
    {
        QVERIFY(QDir(m_folder->path()).mkdir("to"));
        Write("a", "new");
        Write("to/a", "old");
        QVERIFY(FileOperation::CopyFiles({Path("a")}, Path("to")));
        QCOMPARE(Read("to/a"), QByteArray("new"));
    }

    void copiesListUpToTheFirstFailure()
    {
        QVERIFY(QDir(m_folder->path()).mkdir("to"));
        Write("b", "b");
        QVERIFY(FileOperation::CopyFiles({}, Path("to")));
        QVERIFY(!FileOperation::CopyFiles({Path("missing"), Path("b")}, Path("to")));
        QVERIFY(!QFile::exists(Path("to/b")));
    }

    void copiesNoFileOntoItself()
    {
        QVERIFY(QDir(m_folder->path()).mkdir("to"));
        Write("a", "kept");
        QVERIFY(!FileOperation::CopyOneFile(Path("a"), Path("to/../a")));
        QVERIFY(!FileOperation::CopyFileW(Path("a"), m_folder->path()));
        QCOMPARE(Read("a"), QByteArray("kept"));
    }

    void keepsLineEndsOfAFile()
    {
        const QString text = QString::fromUtf8("ä\n€\r\n");
        FileOperation::WriteFile(Path("t"), text, true);
        QCOMPARE(Read("t"), text.toUtf8());
        QCOMPARE(FileOperation::ReadFile(Path("t"), true), text);
    }

    void readsEveryLineEndOfATextFile()
    {
        Write("t", "ä\n€\r\n");
        QCOMPARE(FileOperation::ReadTextFile(Path("t"), true), QString::fromUtf8("ä\n€\n"));
    }

    void writesLineEndsOfTheSystem()
    {
#ifdef Q_OS_WIN
        const QByteArray lineEnd = "\r\n";
#else
        const QByteArray lineEnd = "\n";
#endif
        QVERIFY(FileOperation::WriteTextFile(Path("t"), "a\n", false));
        QCOMPARE(Read("t"), "a" + lineEnd);
    }

    void missingTextFiles()
    {
        QVERIFY(!FileOperation::WriteTextFile(Path("no/t"), "a", true));
        QCOMPARE(FileOperation::ReadFile(Path("no"), true), QString());
    }

#ifdef Q_OS_LINUX
    void specialFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("pipe") << "pipe";
        QTest::newRow("device without end") << "/dev/zero";
        QTest::newRow("folder") << "";
    }
    void specialFiles()
    {
        QFETCH(QString, name);
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
        const QString path = QDir(m_folder->path()).filePath(name);
        QVERIFY(FileOperation::IsFileExist(path));
        QCOMPARE(FileOperation::ReadFile(path, true), QString());
        QCOMPARE(FileOperation::ReadTextFile(path, false), QString());
        QCOMPARE(FileOperation::CalcFileMD5(path), QString());
        QVERIFY(!FileOperation::CopyOneFile(path, Path("copy")));
    }

    void writingToAPipeDoesNotWait()
    {
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
        FileOperation::WriteFile(Path("pipe"), "a", true);
    }

    void readsFileOfUnknownSize()
    {
        QCOMPARE(FileOperation::ReadFile("/proc/self/comm", true), QString("tst_operations\n"));
    }
#endif

    void hashesWholeFile_data()
    {
        QTest::addColumn<int>("size");       // of a file of letters "a"
        QTest::addColumn<QString>("md5sum"); // of the program of that name
        QTest::newRow("one byte over 10 KiB") << 10241 << "cf220cd1faa6342f6b4eae5962a8782a";
        QTest::newRow("empty") << 0 << "d41d8cd98f00b204e9800998ecf8427e";
    }
    void hashesWholeFile()
    {
        QFETCH(int, size);
        Write("f", QByteArray(size, 'a'));
        QTEST(FileOperation::CalcFileMD5(Path("f")), "md5sum");
    }

    void missingFileHasNoHash()
    {
        QCOMPARE(FileOperation::CalcFileMD5(Path("f")), QString());
    }

    void createsEachLevelOfAFolder()
    {
        const QString deep = Path("a") + Native("\\b\\c\\");
        QCOMPARE(PathOperation::CheckDir(deep), deep);
        QVERIFY(QFileInfo(deep).isDir());
    }

    void createsNotEveryFolder()
    {
        QVERIFY(!PathOperation::ForceDir(""));
        QVERIFY(!PathOperation::ForceDir("no such folder and no delimiter"));
        Write("file", "");
        QCOMPARE(PathOperation::CheckDir(Path("file/a")), QString());
    }

    void listsFiles()
    {
        QDir(m_folder->path()).mkdir("Bc.tmp");
        for (const char* name : {"b.tmp", "a.TMP", "c.txt", ".hidden.tmp"})
            Write(name, "");
        const QString folder = m_folder->path();
        const QStringList byName = {"a.TMP", "b.tmp", "Bc.tmp"};
        QCOMPARE(PathOperation::GetFileList(folder, {"*.tmp"}, false), byName);
        const QStringList full(PathOperation::Slash(folder) + "c.txt");
        QCOMPARE(PathOperation::GetFileList(folder, {"c*"}, true), full);
        QCOMPARE(PathOperation::GetFileList(folder, {}, false).size(), 6); // with "." and ".."
    }

    void removesFolders_data()
    {
        QTest::addColumn<bool>("removeSelf");
        QTest::addColumn<QStringList>("patterns");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("left"); // in the folder, which has a link; "-" without both
        QTest::newRow("everything") << true << QStringList() << true << "-";
        QTest::newRow("content") << false << QStringList() << true << "link";
        QTest::newRow("pattern") << true << QStringList("*.tmp") << false << "full link";
        QTest::newRow("links stay") << true << QStringList() << false << "link";
    }
    void removesFolders()
    {
        QFETCH(bool, removeSelf);
        QFETCH(QStringList, patterns);
        QFETCH(QString, left);
        for (const char* name : {"top/full/deep", "top/.hollow", "outside"})
            QVERIFY(QDir(m_folder->path()).mkpath(name));
        for (const char* name : {"top/.a.tmp", "top/full/b.tmp", "top/full/keep", "outside/c.tmp"})
            Write(name, "");
        if (left.endsWith("link") && !LinkFolder(Path("outside"), Path("top/link"))) {
            if (QTest::currentDataTag() == QByteArray("links stay"))
                QSKIP("no links to folders here");
            left = left.remove("link").trimmed();
        }
        QTEST(PathOperation::RemoveDirectoryrecursive(Path("top"), removeSelf, patterns), "result");
        const QDir top(Path("top"));
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        QCOMPARE(top.exists() ? top.entryList(all).join(' ') : QString("-"), left);
        QVERIFY(QFile::exists(Path("outside/c.tmp")));
    }

    void removesNothingWithoutAPath()
    {
        const QString current = QDir::currentPath();
        Write("a", "");
        QDir::setCurrent(m_folder->path());
        const bool result = PathOperation::RemoveDirectoryrecursive("", false, {});
        QDir::setCurrent(current);
        QVERIFY(!result);
        QVERIFY(QFile::exists(Path("a")));
    }

    void choosesFolder_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }
    void choosesFolder()
    {
        QFETCH(bool, accept);
        bool isAnswered = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            isAnswered = isAnswered || AnswerDialog("Choose", m_folder->path(), accept);
        });
        timer.start(100);
        QCOMPARE(PathOperation::GetUserSelectDir("Choose", 0),
                 accept ? QDir::toNativeSeparators(m_folder->path()) : QString());
        QVERIFY(isAnswered);
    }

    void menuTextFillsItsRoom_data()
    {
        QTest::addColumn<int>("room"); // between both texts
        QTest::newRow("many spaces") << 500;
        QTest::newRow("one space") << 1;
        QTest::newRow("no room") << 0;
    }
    void menuTextFillsItsRoom()
    {
        QFETCH(int, room);
        const QFont font;
        const QFontMetrics metrics(font);
        QString pad; // found one space at a time
        while (metrics.horizontalAdvance(pad) < room)
            pad += ' ';
        room += metrics.horizontalAdvance("Open") + metrics.horizontalAdvance("Ctrl+O");
        QCOMPARE(StringOperation::GetMenuStringW(font, "Open", "Ctrl+O", room),
                 "Open" + pad + "Ctrl+O");
    }

    void menuTextWithoutSpaces_data()
    {
        QTest::addColumn<QString>("right");
        QTest::addColumn<qreal>("letterSpacing");
        QTest::newRow("nothing on the right") << "" << 0.0;
        QTest::newRow("spaces have no width") << "Ctrl+O" << -100.0;
    }
    void menuTextWithoutSpaces()
    {
        QFETCH(QString, right);
        QFETCH(qreal, letterSpacing);
        QFont font;
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
        const int width = QFontMetrics(font).horizontalAdvance("Open" + right) + 500;
        QCOMPARE(StringOperation::GetMenuStringW(font, "Open", right, width), "Open" + right);
    }

    void wrapsWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("widestLine"); // the label is as wide
        QTest::addColumn<QString>("expected");
        QTest::newRow("one line") << "aaa bbb"
                                  << "aaa bbb ccc"
                                  << "aaa bbb";
        QTest::newRow("a word a line") << "aaa bbb ccc"
                                       << "aaa b"
                                       << "aaa \nbbb \nccc";
        QTest::newRow("break of its own") << "aaa bbb\nccc"
                                          << "aaa b"
                                          << "aaa bbb\nccc";
        QTest::newRow("no width") << "aa bb"
                                  << ""
                                  << "aa \nbb";
    }
    void wrapsWords()
    {
        QFETCH(QString, text);
        QFETCH(QString, widestLine);
        QFETCH(QString, expected);
        QLabel label;
        label.resize(StringOperation::GetTextTrueLenght(label.font(), widestLine), 10);
        if (!text.contains('\n')) {
            QTest::ignoreMessage(QtDebugMsg, qPrintable("before: " + text));
            QTest::ignoreMessage(QtDebugMsg, qPrintable("after: " + expected));
        }
        QCOMPARE(StringOperation::FormatWordWrapString(text, &label), expected);
    }

    void findsByPattern_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("isFound");
        QTest::addColumn<QString>("output"); // "old" before
        QTest::newRow("first group of the first match") << "(\\d+)px" << true << "12";
        QTest::newRow("no group") << "px" << true << "";
        QTest::newRow("other case") << "(\\d+)PX" << false << "old";
        QTest::newRow("bracket without end") << "(px" << false << "old";
    }
    void findsByPattern()
    {
        QFETCH(QString, pattern);
        QString output = "old";
        QTEST(RegexOperation::RegexFindString("w 12px h 34px", pattern, output), "isFound");
        QTEST(output, "output");
    }
};

QTEST_MAIN(TestOperations)
#include "tst_operations.moc"
