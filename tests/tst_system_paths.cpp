// SPDX-License-Identifier: LGPL-2.1-or-later
// Paths that are unusual on a system, and files that it does not give: what works and what is told.
#include "CommonLib/FileOperation.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/QuaZipOperate.h"
#include "CommonLib/XmlOperation.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLESystemFile.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/PreviewCacheFixture.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QGuiApplication>

#include <optional>
#include <vector>

namespace {

const QByteArray kOld = "what was there before";
/// Names the folder of a disk with room for little, where one is mounted.
const char* const kSmallDisk = "COMMONLIB_SMALL_DISK";

bool WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

class tst_SystemPaths : public QObject, private EngineFixture
{
    Q_OBJECT

    HRESULT Save(const QString& path) const
    {
        return provider->CreateDocumentSerialize()->Save(Project().get(),
                                                         path.toStdWString().c_str());
    }
    HRESULT SaveSettings(const QString& path) const
    {
        const auto file = provider->GetSystemConfig().query<INLESystemFile>();
        return file->Save(path.toStdWString().c_str());
    }
    HRESULT Export(const QString& path) const
    {
        const auto encoder = provider->CreateMediaEncoder();
        const HRESULT opened =
            encoder->Open(ProjectWith(Media(m_media)).get(), path.toStdWString().c_str(), nullptr);
        return opened == S_OK ? encoder->Encode(nullptr, nullptr) : opened;
    }
    /// What the engine says of the last refusal.
    QString Reason() const
    {
        NLEComPtr<INLEFactory> factory;
        NLEComPtr<INLEReasons> reasons;
        CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                       INLEFactory::Iid, factory.putVoid());
        factory->GetReasons(reasons.put());
        wchar_t text[1000] = {};
        reasons->GetText(text, 1000);
        return QString::fromWCharArray(text);
    }

    QString m_media;

private slots:
    void initTestCase()
    {
        m_media = Path("media.mp4");
        TestClip clip;
        clip.size = QSize(160, 90);
        clip.frames = 10;
        QCOMPARE(MakeTestClip(m_media, clip), QString());
    }

    void everythingWorksIn_data()
    {
        QTest::addColumn<QString>("place");
        QTest::newRow("blanks and letters of several scripts") << Path("\u00c4 \u0431 \u6620 .d");
        QTest::newRow("more than 260 characters")
            << Path("deep") + QString('/' + QString(90, 'x')).repeated(4);
#ifdef Q_OS_WIN
        QTest::newRow("a share of the network")
            << "//localhost/" + Path("shared").replace(1, 1, '$');
        QTest::newRow("relative to a drive") << folder.path().left(2) + "by drive";
#endif
    }
    void everythingWorksIn()
    {
        QFETCH(QString, place);
        QDir::setCurrent(folder.path());
        if (place.startsWith("//") && !QFileInfo(place.section('/', 0, 3)).isDir())
            QSKIP("the drive is not shared here");
        const auto in = [&](const char* name) { return place + '/' + name; };
        QVERIFY(QDir().mkpath(place));
        QVERIFY(PathOperation::ForceDir(QDir::toNativeSeparators(in("a/b"))));
        FileOperation::WriteFile(in("a/text.txt"), "text", true);
        QCOMPARE(FileOperation::ReadFile(in("a/text.txt"), true), QString("text"));
        QVERIFY(FileOperation::CopyOneFile(in("a/text.txt"), in("a/b/copy.txt")));
        QCOMPARE(GetFileMd5(10, in("a/b/copy.txt")), GetFileMd5(10, in("a/text.txt")));
        QCOMPARE(FileOperation::CalcFileMD5(in("a/b/copy.txt")).size(), 32);
        XmlOperation::CreateXmlFile(in("a/root.xml"), "root");
        QDomDocument document;
        QVERIFY(XmlOperation::OpenXmlFile(document, in("a/root.xml"), QIODevice::ReadOnly));
        QVERIFY(QuaZipOperate::CompressDir(in("a.zip"), in("a")));
        QCOMPARE(QuaZipOperate::ExtractDir(in("a.zip"), in("out")).size(), 4);
        QVERIFY(FileOperation::DeleteFileW(in("a/text.txt")) &&
                !FileOperation::IsFileExist(in("a/text.txt")));

        QVERIFY(QFile::copy(m_media, in("media.mp4")));
        const Node project = ProjectWith(Media(in("media.mp4")));
        const auto serialize = provider->CreateDocumentSerialize();
        const std::wstring name = in("project.mlt").toStdWString();
        QCOMPARE(serialize->Save(project.get(), name.c_str()), S_OK);
        QCOMPARE(serialize->Save(project.get(), name.c_str()), S_OK); // over the old one
        Node loaded;
        QCOMPARE(serialize->Load(name.c_str(), loaded.put()), S_OK);
        QCOMPARE(ReadFrameNumber(Frame(loaded, 7)), 7);
        for (const char* const film : {"film.mp4", "film.mkv", "%03d.png"})
            QCOMPARE(Export(in(film)), S_OK);
        QCOMPARE(ReadFrameNumber(Frame(Media(in("film.mp4")), 7)), 7);
        QCOMPARE(ReadFrameNumber(QImage(in("007.png"))), 7);
        Cache cache(loaded, in("cache"));
        QCOMPARE(cache.Render(), long(NLECache_Finished));
        QCOMPARE(CountOf(cache.Stat().first), 10L);
        cache.engine.reset();
        QDir::setCurrent(QDir::rootPath());
    }

    void nothingIsWrittenTo_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a folder that is not there") << Path("none/film.mkv");
        QTest::newRow("a name that is too long")
            << Path("film.mkv").insert(folder.path().size() + 1, QString(300, 'x'));
        QTest::newRow("a folder") << Path("folder.mkv");
#ifdef Q_OS_WIN
        QTest::newRow("a reserved name") << Path("nul.mkv");
        QTest::newRow("a reserved name, of a document") << Path("NUL.mlt");
        QTest::newRow("a reserved name alone") << Path("CON");
        QTest::newRow("characters that names cannot have") << Path("a?b<c>.mkv");
        QTest::newRow("a drive that is not there") << "Q:/film.mkv";
#endif
    }
    void nothingIsWrittenTo()
    {
        QFETCH(QString, name);
        QVERIFY(QDir().mkpath(Path("folder.mkv")));
        const QStringList before = QDir(folder.path()).entryList();
        QVERIFY(FAILED(Save(name)));
        QVERIFY2(Reason().contains(name), qPrintable(Reason()));
        QVERIFY(FAILED(Export(name)));
        QVERIFY2(Reason().contains(name), qPrintable(Reason()));
        FileOperation::WriteFile(name, "text", true);
        XmlOperation::CreateXmlFile(name, "root");
        QCOMPARE(FileOperation::ReadFile(name, true), QString());
        QCOMPARE(FileOperation::CalcFileMD5(name), QString());
        QCOMPARE(QDir(folder.path()).entryList(), before);
    }

    void whatWasThereStays_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::newRow("the disk takes no more") << "full";
        QTest::newRow("a small disk has no room left") << "small";
#ifdef Q_OS_WIN
        QTest::newRow("the file cannot be written") << "read-only";
        QTest::newRow("another program reads the file") << "shared";
        QTest::newRow("another program has the file alone") << "alone";
#endif
    }
    void whatWasThereStays()
    {
        QFETCH(QString, trouble);
        const QString place = trouble == "small" ? qEnvironmentVariable(kSmallDisk) : folder.path();
        if (place.isEmpty())
            QSKIP("no small disk is mounted");
        const QString path = place + "/precious.mkv";
        const QString document = place + "/precious.mlt";
        const QString settings = place + "/precious.json";
        const QStringList names = {path, document, settings};
        for (const QString& name : names) {
            QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner);
            QVERIFY(WriteBytes(name, kOld));
            if (trouble == "read-only")
                QVERIFY(QFile::setPermissions(name, QFile::ReadOwner));
        }
        QFile filling(place + "/filling");
        if (trouble == "small" && filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            for (const int bytes : {4096, 1})
                while (filling.write(QByteArray(bytes, ' ')) == bytes) {
                }
        const QStringList before = QDir(place + '/').entryList();
#ifdef Q_OS_WIN
        const DWORD share = trouble == "shared" ? FILE_SHARE_READ : 0;
        std::vector<HANDLE> holders;
        for (const QString& name : names)
            if (trouble == "shared" || trouble == "alone")
                holders.push_back(CreateFileW(name.toStdWString().c_str(), GENERIC_READ, share,
                                              nullptr, OPEN_EXISTING, 0, nullptr));
#endif
        std::optional<FileSizeLimit> full;
        if (trouble == "full")
            full.emplace(10);
        QVERIFY(FAILED(Save(document)));
        const QString saving = Reason();
        QVERIFY(FAILED(Export(path)));
        const QString exporting = Reason();
        QVERIFY(FAILED(SaveSettings(settings)));
        const QString setting = Reason();
        if (trouble == "alone") {
            Node node;
            const auto serialize = provider->CreateDocumentSerialize();
            QVERIFY(FAILED(serialize->Load(document.toStdWString().c_str(), node.put())));
            QVERIFY2(Reason().contains(document), qPrintable(Reason()));
        }
        // A user that may write every file may write these as well.
        if (place == folder.path() && trouble != "full" && !WriteBytes(document, kOld)) {
            FileOperation::WriteFile(document, "text", true);
            QVERIFY(!FileOperation::CopyOneFile(m_media, document));
            QVERIFY(!QuaZipOperate::CompressDir(document, Path("deep")));
            XmlOperation::CreateXmlFile(document, "root");
            QVERIFY(!FileOperation::DeleteFileW(document));
        }
        full.reset();
#ifdef Q_OS_WIN
        for (const HANDLE holder : holders)
            CloseHandle(holder);
#endif
        QVERIFY2(saving.contains(document), qPrintable(saving));
        QVERIFY2(exporting.contains(path), qPrintable(exporting));
        QVERIFY2(setting.contains(settings), qPrintable(setting));
        for (const QString& name : names)
            QCOMPARE(Contents(name), kOld);
        QCOMPARE(QDir(place + '/').entryList(), before);
        filling.remove();
    }

#ifdef Q_OS_WIN
    void aCacheShowsWhatAnotherProgramHas()
    {
        const Node project = ProjectWith(Media(m_media));
        const QString place = Path("held");
        QCOMPARE(Cache(project, place).Render(), long(NLECache_Finished));
        QDirIterator files(place, {"*.nlechunk"}, QDir::Files, QDirIterator::Subdirectories);
        const QString chunk = files.next();
        const QByteArray rendered = Contents(chunk);
        const HANDLE holder = CreateFileW(chunk.toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                                          OPEN_EXISTING, 0, nullptr);
        QVERIFY(holder != INVALID_HANDLE_VALUE);
        const Cache cache(project, place);
        const int shown = ReadFrameNumber(Frame(project, 7, NLEOpen_Cached));
        CloseHandle(holder);
        QCOMPARE(shown, 7);
        QCOMPARE(Contents(chunk), rendered);
        QCOMPARE(ReadFrameNumber(Frame(project, 7, NLEOpen_Cached)), 7);
    }
#endif
};

QTEST_MAIN(tst_SystemPaths)
#include "tst_system_paths.moc"
