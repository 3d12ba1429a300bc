// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QuaZipOperate.h"
#include "tests/support/Files.h"

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

QByteArray Read(const QString& path)
{
    return QFileInfo::exists(path) ? Contents(path) : QByteArray("not there");
}

// Entries as Tree() gives them, with content of the stated size.
void MakeArchive(const QString& path, const QStringList& entries, int size = 1)
{
    QuaZip zip(path);
    zip.setFileNameCodec("ISO-8859-1");
    QVERIFY(zip.open(QuaZip::mdCreate));
    for (const QString& entry : entries) {
        const bool isLink = entry.contains("->");
        QuaZipNewInfo info(entry.section("->", 0, 0));
        info.externalAttr = (isLink ? 0120777U : 0100644U) << 16;
        QuaZipFile file(&zip);
        QVERIFY(file.open(QIODevice::WriteOnly, info));
        if (!entry.endsWith('/'))
            file.write(isLink ? entry.section("->", 1).toLatin1() : QByteArray(size, 'x'));
    }
}

// Every path below a folder, folders ended by a slash, links by their targets.
QStringList Tree(const QString& folder)
{
    QStringList paths;
    const auto filters = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    QDirIterator entries(folder, filters, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo info(entries.next());
        paths += QDir(folder).relativeFilePath(info.filePath());
        if (info.isSymLink())
            paths.last() += "->" + info.symLinkTarget();
        else if (info.isDir())
            paths.last() += '/';
    }
    paths.sort();
    return paths;
}

// Puts a size of content into the first entries of an archive's directory.
void ClaimSizes(QByteArray& archive, int entries, quint32 size)
{
    constexpr int sizeField = 24; // of an entry, which starts with a signature
    for (int at = -1; entries > 0; --entries) {
        at = archive.indexOf("PK\1\2", at + 1);
        qToLittleEndian(size, archive.data() + at + sizeField);
    }
}

} // namespace

class TestZip : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString Path(const QString& name) const { return m_folder->filePath(name); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void unpacksWhatWasPacked()
    {
        const QByteArray large(3000000, 'x');
        QVERIFY(SetContents(Path("in/a"), large));
        QVERIFY(SetContents(Path("in/sub/deep/b"), "b"));
        QVERIFY(SetContents(Path("in/\u65e5\u672c"), ""));
        QVERIFY(QDir(Path("in")).mkdir("empty"));
        QDir::setCurrent(Path("in"));
        QVERIFY(QuaZipOperate::CompressDir("../a.zip", "."));
        const QStringList paths = QuaZipOperate::ExtractDir("../a.zip", "../out");
        QCOMPARE(Tree(Path("out")), Tree(Path("in")));
        QCOMPARE(Read(Path("out/a")), large);
        QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
        QCOMPARE(paths, JlCompress::extractDir("../a.zip", utf8, "../out"));
    }

    void packLeavesFilesBesideTheArchive()
    {
        QVERIFY(SetContents(Path("in/a"), "a"));
        QVERIFY(SetContents(Path("other/.in.zip.part"), "kept"));
        QDir::setCurrent(Path("in"));
        QVERIFY(QuaZipOperate::CompressDir("../other/in.zip", "."));
        QCOMPARE(Tree(Path("other")), QStringList({".in.zip.part", "in.zip"}));
        QCOMPARE(Read(Path("other/.in.zip.part")), QByteArray("kept"));
    }

    void packMakesTheFolderOfTheArchive()
    {
        QVERIFY(SetContents(Path("in/a"), "a"));
        QVERIFY(QuaZipOperate::CompressDir(Path("in/new/in.zip"), Path("in")));
        QVERIFY(QFile::exists(Path("in/new/in.zip")));
    }

    void archiveReplacesAndNeverPacksItself()
    {
        const QString archive = QString(251, 'x') + ".zip"; // no longer name is possible
        QVERIFY(SetContents(Path("in/a"), "a"));
        QDir::setCurrent(Path("in"));
        QVERIFY(QuaZipOperate::CompressDir(archive, "."));
        QVERIFY(QuaZipOperate::CompressDir(archive, "."));
        QCOMPARE(QuaZipOperate::ExtractDir(archive, Path("out")), QStringList(Path("out/a")));
    }

    void packingNothingKeepsTheOldArchive()
    {
        QVERIFY(SetContents(Path("old.zip"), "old"));
        QVERIFY(!QuaZipOperate::CompressDir(Path("old.zip"), Path("missing")));
        QCOMPARE(Read(Path("old.zip")), QByteArray("old"));
    }

    void packsNothingBelowAFile()
    {
        QVERIFY(SetContents(Path("in/file"), ""));
        QVERIFY(!QuaZipOperate::CompressDir(Path("in/file/new.zip"), Path("in")));
    }

#ifdef Q_OS_LINUX
    void packsAllOrNothing_data()
    {
        QTest::addColumn<QString>("command"); // adds to the folder
        QTest::addColumn<bool>("isPacked");
        QTest::newRow("link to a folder that holds it") << "ln -s ../in loop" << false;
        QTest::newRow("link to a file outside") << "ln -s ../outside link" << false;
        QTest::newRow("link to a file inside") << "ln -s $PWD/file sub/link" << true;
        QTest::newRow("broken link") << "ln -s missing link" << false;
        QTest::newRow("pipe") << "mkfifo pipe" << false;
        QTest::newRow("name that is no text") << "touch sub/$(printf 'a\\377b')" << false;
        QTest::newRow("hidden link to a file outside") << "ln -s ../outside .link" << true;
    }
    void packsAllOrNothing()
    {
        QFETCH(QString, command);
        for (const char* name : {"outside", "in/sub/a", "in/file"})
            QVERIFY(SetContents(Path(name), ""));
        QDir::setCurrent(Path("in"));
        QCOMPARE(QProcess::execute("sh", {"-c", command}), 0);
        QTEST(QuaZipOperate::CompressDir(Path("new.zip"), Path("in")), "isPacked");
        QTEST(QFile::exists(Path("new.zip")), "isPacked");
        QTEST(QuaZipOperate::ExtractDir(Path("new.zip"), Path("out")).size() >= 3, "isPacked");
        QProcess::execute("rm", {"-r", Path("in")}); // Qt cannot remove every name
    }

    void archiveReachedByLink_data()
    {
        QTest::addColumn<QString>("archive");
        QTest::newRow("its path leads through a link") << "link/a.zip";
        QTest::newRow("a link in the folder leads to it") << "archives/a.zip";
    }
    // An archive that met itself while it grows would never end.
    void archiveReachedByLink()
    {
        QFETCH(QString, archive);
        QVERIFY(SetContents(Path("in/file"), QByteArray(100000, 'x')));
        QVERIFY(QDir().mkdir(Path("archives")));
        QVERIFY(QFile::link("in", Path("link")));
        QVERIFY(QFile::link("../archives", Path("in/out")));
        QVERIFY(QuaZipOperate::CompressDir(Path(archive), Path("in")));
        const QStringList packed = JlCompress::getFileList(Path(archive));
        QVERIFY(packed.contains("file"));
        QVERIFY(!packed.contains("out/a.zip"));
    }
#endif

    void names_data()
    {
        QTest::addColumn<QStringList>("entries"); // besides a good one, "good/file"
        QTest::addColumn<QStringList>("unpacked");
        const auto row = [](const char* name, const QStringList& entries,
                            const QStringList& unpacked = {}) {
            QTest::newRow(name) << entries << unpacked;
        };
        row("climbs out", {"../evil", "a/../../evil", "../out/evil"});
        row("stays in", {"a/../b", "./c"}, {"b", "c"});
        row("absolute", {"/tmp/evil-entry", "//evil"});
        row("names of what is half unpacked", {".unpacking.half/e", "h/..unpacking.half", "h/e"},
            {".unpacking.half/", ".unpacking.half/e", "h/", "h/..unpacking.half", "h/e"});
        row("the target itself", {".", "a/.."});
#ifdef Q_OS_LINUX
        row("drive and backslash are plain", {"C:\\e", "..\\e"}, {"..\\e", "C:\\e"});
        row("not UTF-8", {"\u00fc.txt"}, {"\ufffd.txt"});
        row("link that stays in", {"s/l->../good/file"}, {"s/", "s/l->good/file"});
        row("link that leads out", {"a->../outside", "b->/etc"});
        row("link that climbs from a link", {"good/up->..", "b->good/up/../outside"},
            {"good/up->"});
        row("through a link of the archive", {"a->linked", "a/e"}, {"a->linked"});
        row("link with a huge target", {"a->" + QString(5000, 'x')});
        row("onto a link that lies there", {"linked/e", "linked/s/", "linked", "linkedFile"});
        row("an entry left out clears no way", {"n/a->../../x", "n->linked", "n/kept"},
            {"n->linked"});
#else
        row("drive, backslash, device", {"C:\\e", "C:e", "..\\e", "nul.txt"});
#endif
    }
    void names()
    {
        QFETCH(QStringList, entries);
        QVERIFY(SetContents(Path("outside/kept"), "kept"));
        QVERIFY(QDir().mkpath(Path("out")));
#ifdef Q_OS_LINUX
        QVERIFY(QFile::link("../outside", Path("out/linked")));
        QVERIFY(QFile::link("../outside/kept", Path("out/linkedFile")));
#endif
        MakeArchive(Path("a.zip"), QStringList("good/file") + entries);
        const QStringList before = Tree(m_folder->path());
        const QStringList paths = QuaZipOperate::ExtractDir(Path("a.zip"), Path("out"));

        QCOMPARE(paths.first(), Path("out/good/file"));
        QCOMPARE(Read(Path("outside/kept")), QByteArray("kept"));
        for (const char* path : {"/tmp/evil-entry", "/evil"})
            QVERIFY2(!QFile::exists(path), path);
        QStringList added = Tree(m_folder->path());
        for (const QString& path : before + QStringList{"out/good/", "out/good/file"})
            QVERIFY2(added.removeOne(path), qPrintable(path));
        added.replaceInStrings(QRegularExpression("^out/|" + Path("out") + "/?"), "");
        QTEST(added, "unpacked");
    }

    void refused_data()
    {
        QTest::addColumn<quint32>("claimedSize"); // of every entry but the last; 0 leaves it
        QTest::addColumn<int>("cut");             // bytes taken off the end
        QTest::addColumn<bool>("isBegun");
        QTest::newRow("more than the disk holds") << quint32(0xFFFFFF00) << 0 << false;
        QTest::newRow("much more content than size") << quint32(1200 << 20) << 0 << true;
        QTest::newRow("more content than claimed") << quint32(10) << 0 << true;
        QTest::newRow("less content than claimed") << quint32(200000) << 0 << true;
        QTest::newRow("cut in the directory") << quint32(0) << 40 << false;
        QTest::newRow("cut in the content") << quint32(0) << 200 << false;
        QTest::newRow("empty file") << quint32(0) << 1000000 << false;
    }
    void refused()
    {
        QFETCH(quint32, claimedSize);
        QFETCH(int, cut);
        QFETCH(bool, isBegun);
        QStringList entries{"a", "b"};
        if (!isBegun && claimedSize > 0) // enough of them to fill the disk
            for (qint64 room = QStorageInfo(Path("")).bytesFree(); room >= 0; room -= claimedSize)
                entries.prepend(QString("a%1").arg(room));
        MakeArchive(Path("a.zip"), entries, 100000);
        QByteArray content = Read(Path("a.zip"));
        if (claimedSize > 0)
            ClaimSizes(content, entries.size() - 1, claimedSize);
        content.chop(cut);
        QVERIFY(SetContents(Path("a.zip"), content));
        QCOMPARE(QuaZipOperate::ExtractDir(Path("a.zip"), Path("out")), QStringList());
        QVERIFY(!QFile::exists(Path("out/b")));
        QCOMPARE(QFile::exists(Path("out")), isBegun);
    }

    void undoneWhereAFileTakesTheWayOfAFolder()
    {
        QVERIFY(SetContents(Path("out/sub"), "kept"));
        MakeArchive(Path("a.zip"), {"first", "sub/file"});
        QCOMPARE(QuaZipOperate::ExtractDir(Path("a.zip"), Path("out")), QStringList());
        QCOMPARE(Tree(Path("out")), QStringList("sub"));
        QCOMPARE(Read(Path("out/sub")), QByteArray("kept"));
    }

    void unpacksNoMissingArchive()
    {
        QCOMPARE(QuaZipOperate::ExtractDir(Path("missing.zip"), Path("out")), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestZip)

#include "tst_zip.moc"
