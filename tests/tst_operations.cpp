// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/FileOperation.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/RegexOperation.h"
#include "CommonLib/StringOperation.h"
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
    if (!dialog || !prompt.isEmpty())
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
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray Read(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void pathTexts()
    {
        const auto check = [](const QString& text, const char* slashed, const char* excluded,
                              const char* folder) {
            const QString path = Native(text);
            QCOMPARE(PathOperation::Slash(path), Native(slashed));
            QCOMPARE(PathOperation::ExcludeTrailingPathDelimiter(path), Native(excluded));
            QCOMPARE(PathOperation::ExtractFilePath(path), Native(folder));
        };
        check("C:\\data", "C:\\data\\", "C:\\data", "C:");
        check("C:\\data\\", "C:\\data\\", "C:\\data", "C:\\data");
        check("C:/a\\b", "C:/a\\b\\", "C:/a\\b", "C:/a");
        check("b.txt", "b.txt\\", "b.txt", "");
        check("\\", "\\\\", "\\", "");
        check("", "\\", "", "");
#ifdef Q_OS_WIN
        check("C:/data/", "C:/data/\\", "C:/data/", "C:/data");
#endif
    }

    void fileNames()
    {
        const auto check = [](const QString& path, const char* directory, const char* made,
                              const char* replaced) {
            QCOMPARE(FileOperation::GetFileDir(path), QString(directory));
            QCOMPARE(FileOperation::MakeFileName(path, "_1"), QString(made));
            QCOMPARE(FileOperation::RepalceSuffixName(path, ".z"), Native(replaced));
            const QString folder = PathOperation::Slash(QFileInfo(path).absolutePath());
            QCOMPARE(FileOperation::AppendFileNameSuffix(path, "_1"), folder + made);
        };
        check("/d.x/a.b.c", "/d.x/", "a_1.c", "/d.x\\a.z");
        check("/d/a", "/d/", "a_1.", "/d\\a.z");
        check("a.c", "./", "a_1.c", "\\a.z");
        check("/a.c", "/", "a_1.c", "\\a.z");
    }

    void createsAndDeletes()
    {
        QVERIFY(FileOperation::DeleteFileW(Path("a")));
        FileOperation::CreateNewFile(Path("a"));
        QCOMPARE(Read("a"), QByteArray());
        Write("a", "kept");
        FileOperation::CreateNewFile(Path("a"));
        QCOMPARE(Read("a"), QByteArray("kept"));
        QVERIFY(FileOperation::IsFileExist(QStringList()));
        QVERIFY(!FileOperation::IsFileExist({Path("a"), Path("b")}));
        QVERIFY(!FileOperation::RemoveFile(m_folder->path()));
        for (const char* text : {"12a", "2147483648", "0x10", ""})
            QCOMPARE(StringOperation::StrToInt(text, 7), 7);
        QCOMPARE(StringOperation::CreateUUID(true).size(), 36);
        QVERIFY(FileOperation::RemoveFile(Path("a")) && !FileOperation::IsFileExist(Path("a")));
    }

    void copies()
    {
        QVERIFY(PathOperation::ForceDir(Path("to")));
        Write("a", "new");
        Write("b", "b");
        Write("to/a", "old");
        QVERIFY(FileOperation::CopyFiles({}, Path("to")));
        QVERIFY(FileOperation::CopyFiles({Path("a")}, Path("to")));
        QCOMPARE(Read("to/a"), QByteArray("new"));
        QVERIFY(!FileOperation::CopyFiles({Path("missing"), Path("b")}, Path("to")));
        QVERIFY(!QFile::exists(Path("to/b")));
        QVERIFY(!FileOperation::CopyOneFile(Path("a"), Path("to/../a")));
        QVERIFY(!FileOperation::CopyFileW(Path("a"), m_folder->path()));
        QCOMPARE(Read("a"), QByteArray("new"));
    }

    void textFiles()
    {
#ifdef Q_OS_WIN
        const QByteArray lineEnd = "\r\n";
#else
        const QByteArray lineEnd = "\n";
#endif
        const QString path = Path("t");
        FileOperation::WriteFile(path, QString::fromUtf8("ä\n€\r\n"), true);
        QCOMPARE(Read("t"), QByteArray("ä\n€\r\n"));
        QCOMPARE(FileOperation::ReadFile(path, true), QString::fromUtf8("ä\n€\r\n"));
        QCOMPARE(FileOperation::ReadTextFile(path, true), QString::fromUtf8("ä\n€\n"));
        QVERIFY(FileOperation::WriteTextFile(path, "a\n", false));
        QCOMPARE(Read("t"), "a" + lineEnd);
        QVERIFY(!FileOperation::WriteTextFile(Path("no/t"), "a", true));
        QCOMPARE(FileOperation::ReadFile(Path("no"), true), QString());
    }

#ifdef Q_OS_LINUX
    void specialFiles()
    {
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
        FileOperation::WriteFile(Path("pipe"), "a", true);
        for (const QString& path : {Path("pipe"), QString("/dev/zero"), m_folder->path()}) {
            QVERIFY(FileOperation::IsFileExist(path));
            QCOMPARE(FileOperation::ReadFile(path, true), QString());
            QCOMPARE(FileOperation::ReadTextFile(path, false), QString());
            QCOMPARE(FileOperation::CalcFileMD5(path), QString());
            QVERIFY(!FileOperation::CopyOneFile(path, Path("copy")));
        }
        QCOMPARE(FileOperation::ReadFile("/proc/self/comm", true), QString("tst_operations\n"));
    }
#endif

    void hashesWholeFile()
    {
        // Figures of the md5sum program.
        QCOMPARE(FileOperation::CalcFileMD5(Path("f")), QString());
        Write("f", QByteArray(10241, 'a'));
        QCOMPARE(FileOperation::CalcFileMD5(Path("f")), "cf220cd1faa6342f6b4eae5962a8782a");
        Write("f", QByteArray());
        QCOMPARE(FileOperation::CalcFileMD5(Path("f")), "d41d8cd98f00b204e9800998ecf8427e");
    }

    void forcesFolders()
    {
        const QString deep = Path("a") + Native("\\b\\c\\");
        QCOMPARE(PathOperation::CheckDir(deep), deep);
        QVERIFY(QFileInfo(deep).isDir());
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
        QVERIFY(!result && QFile::exists(Path("a")));
    }

    void choosesFolder()
    {
        for (const bool accept : {true, false}) {
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
    }

    void menuTexts()
    {
        const auto check = [](const QString& right, int room, qreal letterSpacing) {
            QFont font;
            font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
            const QFontMetrics metrics(font);
            QString pad; // found one space at a time
            while (!right.isEmpty() && letterSpacing == 0 && metrics.horizontalAdvance(pad) < room)
                pad += ' ';
            room += metrics.horizontalAdvance("Open") + metrics.horizontalAdvance(right);
            const QString text = StringOperation::GetMenuStringW(font, "Open", right, room);
            QCOMPARE(text, "Open" + pad + right);
        };
        check("", 500, 0);
        for (const int room : {500, 1, 0})
            check("Ctrl+O", room, 0);
        check("Ctrl+O", 500, -100); // spaces without width
    }

    void wrapsWords()
    {
        const auto check = [](const QString& text, const char* widestLine, const char* expected) {
            QLabel label;
            label.resize(StringOperation::GetTextTrueLenght(label.font(), widestLine), 10);
            if (!text.contains('\n')) {
                QTest::ignoreMessage(QtDebugMsg, qPrintable("before: " + text));
                QTest::ignoreMessage(QtDebugMsg, qPrintable(QString("after: ") + expected));
            }
            QCOMPARE(StringOperation::FormatWordWrapString(text, &label), QString(expected));
        };
        check("aaa bbb", "aaa bbb ccc", "aaa bbb");
        check("aaa bbb ccc", "aaa b", "aaa \nbbb \nccc");
        check("aaa bbb\nccc", "aaa b", "aaa bbb\nccc"); // has a break of its own
        check("aa bb", "", "aa \nbb");
    }

    void findsByPattern()
    {
        const QString text = "w 12px h 34px";
        QString output = "old";
        for (const char* pattern : {"(\\d+)PX", "(px"})
            QVERIFY(!RegexOperation::RegexFindString(text, pattern, output) && output == "old");
        QVERIFY(RegexOperation::RegexFindString(text, "(\\d+)px", output) && output == "12");
        QVERIFY(RegexOperation::RegexFindString(text, "px", output) && output.isEmpty());
    }
};

QTEST_MAIN(TestOperations)
#include "tst_operations.moc"
