// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QuaZipOperate.h"

#include <JlCompress.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>
#include <quazip.h>
#include <quazipfile.h>

namespace {

constexpr quint32 kLinkMode = 0120777;

struct Entry
{
    QByteArray name; // as it stands in the archive
    QByteArray content;
    bool isLink = false;
};
using Entries = QList<Entry>;

bool Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

void MakeArchive(const QString& path, const Entries& entries)
{
    QuaZip zip(path);
    zip.setFileNameCodec("ISO-8859-1");
    QVERIFY(zip.open(QuaZip::mdCreate));
    for (const Entry& entry : entries) {
        QuaZipNewInfo info(QString::fromLatin1(entry.name));
        info.externalAttr = (entry.isLink ? kLinkMode : 0100644) << 16;
        QuaZipFile file(&zip);
        QVERIFY(file.open(QIODevice::WriteOnly, info));
        file.write(entry.content);
    }
}

// Every path below a folder, folders ended by a slash, links by their targets.
QStringList Tree(const QString& folder)
{
    QStringList paths;
    const auto filters = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    QDirIterator entries(folder, filters, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo info = entries.fileInfo();
        paths += QDir(folder).relativeFilePath(path) + (info.isSymLink()
                                                            ? "->" + QFile::symLinkTarget(path)
                                                        : info.isDir() ? "/"
                                                                       : "");
    }
    paths.sort();
    return paths;
}

} // namespace
Q_DECLARE_METATYPE(Entries)

class TestZip : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString Path(const QString& name) const { return m_folder->filePath(name); }

    // Changes the size that the archive's directory states for its first entry.
    void ClaimSize(const QString& path, quint32 size)
    {
        QByteArray content = Read(path);
        const int header = content.indexOf("PK\1\2");
        QVERIFY(header > 0);
        qToLittleEndian(size, content.data() + header + 24);
        QVERIFY(Write(path, content));
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void packAndUnpack()
    {
        const QByteArray large(3000000, 'x');
        QVERIFY(Write(Path("in/a"), large));
        QVERIFY(Write(Path("in/sub/deep/b"), "b"));
        QVERIFY(Write(Path("in/\u65e5\u672c"), ""));
        QVERIFY(QDir(Path("in")).mkdir("empty"));
        QDir::setCurrent(Path("in"));
        QVERIFY(QuaZipOperate::CompressDir("new/in.zip", "."));
        QVERIFY(QuaZipOperate::CompressDir("in.zip", "."));
        QVERIFY(QuaZipOperate::CompressDir("in.zip", ".")); // replaces, and never packs, itself
        const QStringList paths = QuaZipOperate::ExtractDir("in.zip", "../out");
        QStringList packed = Tree(Path("in"));
        packed.removeOne("in.zip");
        QCOMPARE(Tree(Path("out")), packed);
        QCOMPARE(Read(Path("out/a")), large);
        QCOMPARE(paths,
                 JlCompress::extractDir("in.zip", QTextCodec::codecForName("UTF-8"), "../out"));
    }

    void packFails()
    {
        QVERIFY(Write(Path("old.zip"), "old"));
        QVERIFY(!QuaZipOperate::CompressDir(Path("old.zip"), Path("missing")));
        QCOMPARE(Read(Path("old.zip")), QByteArray("old"));
        QVERIFY(Write(Path("in/file"), ""));
        QVERIFY(!QuaZipOperate::CompressDir(Path("in/file/new.zip"), Path("in")));
#ifdef Q_OS_LINUX
        QVERIFY(QFile::link("../in", Path("in/loop")));
        QVERIFY(!QuaZipOperate::CompressDir(Path("new.zip"), Path("in")));
        QVERIFY(!QFile::exists(Path("new.zip")));
#endif
    }

    void names_data()
    {
        QTest::addColumn<Entries>("entries"); // besides a good one, "good/file"
        QTest::addColumn<QStringList>("unpacked");
        const auto row = [](const char* name, const Entries& entries, const QStringList& unpacked) {
            QTest::newRow(name) << entries << unpacked;
        };
        row("climbs out", {{"../evil", "x"}, {"a/../../evil", "x"}, {"../out/evil", "x"}}, {});
        row("stays in", {{"a/../b", "x"}, {"./c", "x"}}, {"b", "c"});
        row("absolute", {{"/tmp/evil-entry", "x"}, {"//evil", "x"}}, {});
        row("the target itself", {{".", "x"}, {"a/..", "x"}}, {});
#ifdef Q_OS_LINUX
        row("drive and backslash are plain",
            {{"C:\\e", "x"},
             { "..\\e",
               "x" }},
            {"..\\e", "C:\\e"});
        row("not UTF-8", {{ "\xfc.txt", "x" }}, {"\ufffd.txt"});
        row("link that stays in", {{ "s/l", "../good/file", true }}, {"s/", "s/l->good/file"});
        row("link that leads out", {{"a", "../outside", true}, { "b", "/etc", true }}, {});
        row("link that climbs from a link",
            {{"good/up", "..", true},
             { "b",
               "good/up/../outside",
               true }},
            {"good/up->"});
        row("through a link of the archive",
            {{"a", "linked", true},
             { "a/e",
               "x" }},
            {"a->linked"});
        row("link with a huge target", {{ "a", QByteArray(5000, 'x'), true }}, {});
        row("through or onto a link that lies there",
            {{"linked/e", "x"},
             {"linked/s/", ""},
             {"linked", "x"},
             { "linkedFile",
               "x" }},
            {});
        row("an entry left out clears no way",
            {{"n/a", "../../x", true},
             {"n", "linked", true},
             { "n/kept",
               "x" }},
            {"n->linked"});
#else
        row("drive, backslash, device",
            {{"C:\\e", "x"}, {"C:e", "x"}, {"..\\e", "x"}, {"nul.txt", "x"}}, {});
#endif
    }
    void names()
    {
        QFETCH(Entries, entries);
        QFETCH(QStringList, unpacked);
        QVERIFY(Write(Path("outside/kept"), "kept"));
        QVERIFY(QDir().mkpath(Path("out")));
#ifdef Q_OS_LINUX
        QVERIFY(QFile::link("../outside", Path("out/linked")));
        QVERIFY(QFile::link("../outside/kept", Path("out/linkedFile")));
#endif
        entries.prepend({"good/file", "good"});
        MakeArchive(Path("a.zip"), entries);
        const QStringList before = Tree(Path("out"));
        const QStringList outside = Tree(m_folder->path()).filter(QRegularExpression("^(?!out/)"));
        const QStringList paths = QuaZipOperate::ExtractDir(Path("a.zip"), Path("out"));

        QCOMPARE(Tree(m_folder->path()).filter(QRegularExpression("^(?!out/)")), outside);
        QCOMPARE(Read(Path("outside/kept")), QByteArray("kept"));
        QVERIFY(!QFile::exists("/tmp/evil-entry") && !QFile::exists("/evil"));
        QCOMPARE(paths.first(), Path("out/good/file"));
        QStringList added;
        for (const QString& path : Tree(Path("out"))) {
            if (!before.contains(path) && path != "good/" && path != "good/file")
                added += QString(path).replace(Path("out") + '/', "").replace(Path("out"), "");
        }
        QCOMPARE(added, unpacked);
    }

    void refused_data()
    {
        QTest::addColumn<quint32>("claimedSize"); // of the first entry; 0 leaves it
        QTest::addColumn<int>("cut");             // bytes taken off the end
        QTest::newRow("bomb") << quint32(0xFFFFFF00) << 0;
        QTest::newRow("more content than claimed") << quint32(10) << 0;
        QTest::newRow("less content than claimed") << quint32(200000) << 0;
        QTest::newRow("cut in the directory") << quint32(0) << 40;
        QTest::newRow("cut in the content") << quint32(0) << 200;
        QTest::newRow("empty file") << quint32(0) << 1000000;
    }
    void refused()
    {
        QFETCH(quint32, claimedSize);
        QFETCH(int, cut);
        MakeArchive(Path("a.zip"), {{"a", QByteArray(100000, 'x')}, {"b", "b"}});
        if (claimedSize > 0)
            ClaimSize(Path("a.zip"), claimedSize);
        QByteArray content = Read(Path("a.zip"));
        content.chop(cut);
        QVERIFY(Write(Path("a.zip"), content));
        QCOMPARE(QuaZipOperate::ExtractDir(Path("a.zip"), Path("out")), QStringList());
        QVERIFY(!QFile::exists(Path("out/b")));
        QCOMPARE(QFile::exists(Path("out")), claimedSize > 0 && claimedSize < (1U << 30));
    }

    // A file where the archive has a folder: what came before goes again.
    void undone()
    {
        QVERIFY(Write(Path("out/sub"), "kept"));
        MakeArchive(Path("a.zip"), {{"first", "x"}, {"sub/file", "x"}});
        QCOMPARE(QuaZipOperate::ExtractDir(Path("a.zip"), Path("out")), QStringList());
        QCOMPARE(Tree(Path("out")), QStringList("sub"));
        QCOMPARE(QuaZipOperate::ExtractDir(Path("missing.zip"), Path("out")), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestZip)

#include "tst_zip.moc"
