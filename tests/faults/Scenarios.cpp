// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Scenarios.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/MultiLangMgr.h"
#include "CommonLib/QuaZipOperate.h"
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEPlayer.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLESystemFile.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/Files.h"
#include "tests/support/PreviewCacheFixture.h"

namespace {

constexpr NLEEncodeSettings kFilm = {{160, 90}, {25, 1}, {}, 0, 48000, 2, 0};
constexpr int kFrames = 10;
constexpr int kPatience = 20000; // milliseconds
/// A player that says it plays and does not; it has no reason.
constexpr HRESULT kStandsStill = HRESULT(0x8badf00d);

bool HasReason()
{
    NLEComPtr<INLEFactory> factory;
    NLEComPtr<INLEReasons> reasons;
    int reason = NLEReason_None;
    CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                   INLEFactory::Iid, factory.putVoid());
    return factory && factory->GetReasons(reasons.put()) == S_OK &&
           reasons->GetLast(nullptr, &reason) == S_OK && reason != NLEReason_None;
}

Outcome OfEngine(HRESULT result)
{
    return {SUCCEEDED(result), FAILED(result) && HasReason()};
}

class Work
{
public:
    Work(EngineFixture& engine, const QString& folder) : m_engine(engine), m_folder(folder) {}

    Scenario Document(const char* name)
    {
        const QString path = In(name);
        return {
            name, [=] { Save(path, ProjectOf(1)); },
            [=] { return [=, project = ProjectOf(2)] { return OfEngine(Save(path, project)); }; },
            [=] { return LookAtDocument(path); }};
    }
    Scenario Settings()
    {
        const QString path = In("settings.json");
        return {"settings", [=] { SaveSettings(path, 1); },
                [=] { return [=] { return OfEngine(SaveSettings(path, 2)); }; },
                [=] { return LookAtSettings(path); }};
    }
    Scenario Export()
    {
        const QString path = In("film.mp4");
        return {
            "export", [=] { Write(path, FilmOf(Qt::red)); },
            [=] { return [=, film = FilmOf(Qt::blue)] { return OfEngine(Write(path, film)); }; },
            [=] { return LookAtFilm(path); }};
    }
    Scenario Thumbnails()
    {
        const QString path = In("film.mp4");
        return {"thumbnails", [=] { Write(path, FilmOf(Qt::red)); },
                [=] { return [=] { return OfEngine(DrawThumbnails(path)); }; },
                [=] { return LookAtFilm(path); }};
    }
    Scenario Play()
    {
        const QString path = In("film.mp4");
        return {"play", [=] { Write(path, FilmOf(Qt::red)); },
                [=] {
                    return [=, film = m_engine.ProjectWith(m_engine.Media(path)),
                            factory = EngineFixture::Factory()] {
                        return OfEngine(PlayFilm(*factory.get(), film));
                    };
                },
                [=] { return LookAtFilm(path); }};
    }
    Scenario PreviewCache()
    {
        return {"preview-cache", [] {},
                [=] {
                    const Node project = FilmOf(Qt::green);
                    const auto cache = std::make_shared<Cache>(project, In("cache"));
                    return [=] { return Render(project, *cache); };
                },
                [=] {
                    const Node project = FilmOf(Qt::green);
                    Cache cache(project, In("cache"));
                    return Render(project, cache).isDone ? Left::New : Left::Broken;
                }};
    }
    Scenario Import()
    {
        const QString card = In("card/clip.mp4");
        const QString copy = In("copy.mp4");
        return {"import", [=] { WriteBytes(card); },
                [=] {
                    qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(In("card")));
                    WpdApiLib::SetCallbackProc(TakeClip, &m_clip);
                    return [=] { return Outcome::Of(ImportTo(copy)); };
                },
                [=] { return LookAtImport(card, copy); }};
    }
    Scenario Language()
    {
        const QString path = In("language.ini");
        return {"language", [=] { Choose(path, Language_German); },
                [=] {
                    return [=] {
                        Choose(path, Language_French);
                        return Outcome::Of(LookAtLanguage(path) == Left::New);
                    };
                },
                [=] { return LookAtLanguage(path); }};
    }
    Scenario Unzip()
    {
        const QString archive = In("archive.zip");
        const QString target = In("unpacked");
        return {"unzip", [=] { Pack(archive); },
                [=] {
                    return [=] {
                        return Outcome::Of(!QuaZipOperate::ExtractDir(archive, target).isEmpty());
                    };
                },
                [=] { return LookAtUnpacked(target); }};
    }
    Scenario Log()
    {
        const QString path = In("log.txt");
        return {"log", [=] { WriteLog(path, "old"); },
                [=] { return [=] { return Outcome::Of(WriteLog(path, "new")); }; },
                [=] { return LookAtLog(path); }};
    }

private:
    QString In(const char* name) const { return m_folder + '/' + QLatin1String(name); }

    Node ProjectOf(int clips) const
    {
        Node project = m_engine.Project();
        for (int clip = 0; clip < clips; ++clip)
            EngineFixture::Add(project, m_engine.Colour(Qt::red), clip * kFrames);
        return project;
    }
    Node FilmOf(const QColor& color) const
    {
        return m_engine.ProjectWith(EngineFixture::Trimmed(m_engine.Colour(color), 0, kFrames - 1));
    }

    HRESULT Save(const QString& path, const Node& project) const
    {
        const auto document = m_engine.provider->CreateDocumentSerialize();
        return document ? document->Save(project.get(), path.toStdWString().c_str())
                        : E_OUTOFMEMORY;
    }
    Left LookAtDocument(const QString& path) const
    {
        Node project;
        const auto serializer = m_engine.provider->CreateDocumentSerialize();
        if (FAILED(serializer->Load(path.toStdWString().c_str(), project.put())))
            return QFileInfo::exists(path) ? Left::Broken : Left::Nothing;
        return EngineFixture::ClipCount(project) == 1 ? Left::Old : Left::New;
    }

    HRESULT SaveSettings(const QString& path, int threads) const
    {
        const auto config = m_engine.provider->GetSystemConfig();
        NLEComPtr<INLEProperties> bag;
        if (!config || FAILED(config->GetProperties(bag.put())) ||
            FAILED(bag->SetInt(NLEKey::System::kThreads, threads)))
            return E_OUTOFMEMORY;
        return config.query<INLESystemFile>()->Save(path.toStdWString().c_str());
    }
    Left LookAtSettings(const QString& path) const
    {
        const auto config = m_engine.provider->GetSystemConfig();
        NLEComPtr<INLEProperties> bag;
        int threads = 0;
        if (FAILED(config.query<INLESystemFile>()->Load(path.toStdWString().c_str())) ||
            FAILED(config->GetProperties(bag.put())) ||
            FAILED(bag->GetInt(NLEKey::System::kThreads, &threads)))
            return Left::Broken;
        return threads == 1 ? Left::Old : Left::New;
    }

    HRESULT Write(const QString& path, const Node& film) const
    {
        const auto encoder = m_engine.provider->CreateMediaEncoder();
        const HRESULT opened = encoder
                                   ? encoder->Open(film.get(), path.toStdWString().c_str(), &kFilm)
                                   : E_OUTOFMEMORY;
        return opened == S_OK ? encoder->Encode(nullptr, nullptr) : opened;
    }
    HRESULT DrawThumbnails(const QString& path) const
    {
        const auto codec = m_engine.provider->CreateCodecFromFile(path);
        const auto thumbnails = m_engine.provider->CreateThumbnailExtractor();
        NLEComPtr<INLEMediaInfo> info;
        if (!codec || FAILED(codec->GetMediaInfo(info.put())) || !thumbnails)
            return E_FAIL;
        HRESULT result = thumbnails->SetSource(info.get(), 0);
        for (int frame = 0; result == S_OK && frame < kFrames; ++frame) {
            NLEComPtr<INLEPicture> picture;
            result = thumbnails->Extract(frame, {64, 36}, picture.put());
        }
        return result;
    }
    /// Until the position has moved, or nobody moves it.
    static HRESULT PlayFilm(INLEFactory& factory, const Node& film)
    {
        NLEComPtr<INLEPlayer> player;
        const HRESULT made = factory.CreatePlayer(player.put());
        const HRESULT opened = FAILED(made) ? made : player->Open(film.get());
        const HRESULT played = FAILED(opened) ? opened : player->Play(1);
        const auto hasMoved = [&] {
            int position = 0;
            return player->GetPosition(&position) == S_OK && position > 0;
        };
        if (played == S_OK && !QTest::qWaitFor(hasMoved, kPatience))
            return kStandsStill;
        return played;
    }
    Left LookAtFilm(const QString& path) const
    {
        if (!QFileInfo::exists(path))
            return Left::Nothing;
        const Node film = m_engine.Media(path);
        if (!film)
            return Left::Broken;
        const QImage last = m_engine.Frame(m_engine.ProjectWith(film), kFrames - 1);
        const QColor color = last.isNull() ? QColor(Qt::black) : last.pixelColor(160, 90);
        if (color.red() > 200 && color.blue() < 60)
            return Left::Old;
        return color.blue() > 200 && color.red() < 60 ? Left::New : Left::Broken;
    }

    Outcome Render(const Node& project, Cache& cache) const
    {
        const HRESULT started = cache.Start();
        if (started == S_OK)
            cache.End();
        const bool isWhole = cache.Needed().isEmpty();
        return Outcome::Of(isWhole && !m_engine.Frame(project, kFrames - 1).isNull());
    }

    static QByteArray Clip() { return QByteArray(3000000, 'c'); }
    static void WriteBytes(const QString& path)
    {
        if (!SetContents(path, Clip()))
            qWarning("no file to copy");
    }
    /// Notes the clip among what is read of a device.
    static std::int64_t TakeClip(HWND /*window*/, std::uint32_t /*message*/, std::uint64_t code,
                                 std::int64_t value, void* user)
    {
        if (code == WpdObjectRead) {
            const auto& record = *reinterpret_cast<const WpdObjectRecord*>(value);
            if (record.originalFileName == std::wstring_view(L"clip.mp4"))
                *static_cast<std::wstring*>(user) = record.objectId;
        }
        return 0;
    }
    bool ImportTo(const QString& copy)
    {
        m_clip.clear();
        const QByteArray card = QUrl::fromLocalFile(In("card")).toEncoded();
        const bool isFound =
            WpdApiLib::ChooseDevice(QString::fromLatin1(card).toStdWString().c_str(), nullptr) &&
            WpdApiLib::EnumerateAllContent() && !m_clip.empty();
        const bool isCopied = isFound && WpdApiLib::TransferContentFromDevice(
                                             m_clip.c_str(), copy.toStdWString().c_str(), 0) == 1;
        WpdApiLib::UnregisterForEventNotifications();
        // Without memory for its buffer the library copies nothing, and calls that a success.
        return isCopied && QFileInfo(copy).size() > 0;
    }
    static Left LookAtImport(const QString& card, const QString& copy)
    {
        if (QFileInfo::exists(QFileInfo(card).path()) && Contents(card) != Clip())
            return Left::Broken;
        // What was written of a copy stays.
        return Contents(copy) == Clip() ? Left::New : Left::Nothing;
    }

    static void Choose(const QString& path, Language_Locale language)
    {
        MultiLangMgr* manager = MultiLangMgr::GetInstance();
        manager->SetConfigPath(path);
        manager->SetLangLocale(language);
        MultiLangMgr::Release();
    }
    static Left LookAtLanguage(const QString& path)
    {
        MultiLangMgr* manager = MultiLangMgr::GetInstance();
        manager->SetConfigPath(path);
        manager->SetLangLocale();
        const Language_Locale language = manager->GetLangLocale();
        MultiLangMgr::Release();
        if (language == Language_French)
            return Left::New;
        return language == Language_German ? Left::Old : Left::Broken;
    }

    void Pack(const QString& archive) const
    {
        const QString content = In("content");
        for (const char* name : {"a.txt", "b.txt"})
            if (!SetContents(content + '/' + QLatin1String(name), QByteArray(100000, name[0])))
                qWarning("no file to pack");
        QuaZipOperate::CompressDir(archive, content);
    }
    static Left LookAtUnpacked(const QString& target)
    {
        const QDir folder(target);
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString& name : names) {
            const QByteArray content = Contents(folder.filePath(name));
            if (content != QByteArray(100000, name.at(0).toLatin1()))
                return Left::Broken;
        }
        return names.size() == 2 ? Left::New : Left::Nothing;
    }

    static bool WriteLog(const QString& path, const char* text)
    {
        BaseLog* log = CreateLogInstance();
        const bool isOpen = log->Init(path.toLocal8Bit().constData(), false, 0) == 0;
        for (int line = 0; isOpen && line < kFrames; ++line)
            log->LogInfo("faults", "WriteLog", line, "%s", text);
        log->Release();
        return isOpen;
    }
    static Left LookAtLog(const QString& path)
    {
        const QByteArray content = Contents(path);
        if (content.count("old") != kFrames || content.lastIndexOf("old") > content.size() - 4)
            return Left::Broken;
        return content.count("new") == kFrames ? Left::New : Left::Old;
    }

    EngineFixture& m_engine;
    const QString m_folder;
    std::wstring m_clip; ///< its identifier on the device
};

} // namespace

std::vector<Scenario> AllScenarios(EngineFixture& engine, const QString& path)
{
    const auto work = std::make_shared<Work>(engine, path);
    std::vector<Scenario> scenarios = {work->Document("film.mlt"),
                                       work->Document("film.otio"),
                                       work->Settings(),
                                       work->Export(),
                                       work->Thumbnails(),
                                       work->PreviewCache(),
                                       work->Play(),
                                       work->Import(),
                                       work->Language(),
                                       work->Unzip(),
                                       work->Log()};
    for (Scenario& scenario : scenarios) // the work lives as long as they do
        scenario.prepare = [work, prepare = std::move(scenario.prepare)] { prepare(); };
    return scenarios;
}
