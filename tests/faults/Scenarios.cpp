// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Scenarios.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/MultiLangMgr.h"
#include "CommonLib/QuaZipOperate.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLESystemFile.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/PreviewCacheFixture.h"

namespace {

constexpr NLEEncodeSettings kFilm = {{160, 90}, {25, 1}, {}, 0, 48000, 2, 0};
constexpr int kFrames = 10;

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
        return {name, [=] { Save(path, 1); }, [=] { return OfEngine(Save(path, 2)); },
                [=] { return LookAtDocument(path); }};
    }
    Scenario Settings()
    {
        const QString path = In("settings.json");
        return {"settings", [=] { SaveSettings(path, 1); },
                [=] { return OfEngine(SaveSettings(path, 2)); },
                [=] { return LookAtSettings(path); }};
    }
    Scenario Export()
    {
        const QString path = In("film.mp4");
        return {"export", [=] { Write(path, Qt::red); },
                [=] { return OfEngine(Write(path, Qt::blue)); }, [=] { return LookAtFilm(path); }};
    }
    Scenario Thumbnails()
    {
        const QString path = In("film.mp4");
        return {"thumbnails", [=] { Write(path, Qt::red); },
                [=] { return Outcome::Of(LookAtFilm(path) == Left::Old); },
                [=] { return LookAtFilm(path); }};
    }
    Scenario PreviewCache()
    {
        return {"preview-cache", [] {}, [=] { return Render(); },
                [=] { return Render().isDone ? Left::New : Left::Broken; }};
    }
    Scenario Language()
    {
        const QString path = In("language.ini");
        return {"language", [=] { Choose(path, Language_German); },
                [=] {
                    Choose(path, Language_French);
                    return Outcome::Of(LookAtLanguage(path) == Left::New);
                },
                [=] { return LookAtLanguage(path); }};
    }
    Scenario Unzip()
    {
        const QString archive = In("archive.zip");
        const QString target = In("unpacked");
        return {"unzip", [=] { Pack(archive); },
                [=] { return Outcome::Of(!QuaZipOperate::ExtractDir(archive, target).isEmpty()); },
                [=] { return LookAtUnpacked(target); }};
    }
    Scenario Log()
    {
        const QString path = In("log.txt");
        return {"log", [=] { WriteLog(path, "old"); },
                [=] { return Outcome::Of(WriteLog(path, "new")); },
                [=] { return LookAtLog(path); }};
    }

private:
    QString In(const char* name) const { return m_folder + '/' + QLatin1String(name); }

    HRESULT Save(const QString& path, int clips) const
    {
        const Node project = m_engine.Project();
        for (int clip = 0; clip < clips; ++clip)
            EngineFixture::Add(project, m_engine.Colour(Qt::red), clip * kFrames);
        return m_engine.provider->CreateDocumentSerialize()->Save(project.get(),
                                                                  path.toStdWString().c_str());
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
        config->GetProperties(bag.put());
        bag->SetInt(NLEKey::System::kThreads, threads);
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

    HRESULT Write(const QString& path, const QColor& color) const
    {
        const Node clip = EngineFixture::Trimmed(m_engine.Colour(color), 0, kFrames - 1);
        const Node project = m_engine.ProjectWith(clip);
        const auto encoder = m_engine.provider->CreateMediaEncoder();
        const HRESULT opened = encoder->Open(project.get(), path.toStdWString().c_str(), &kFilm);
        return opened == S_OK ? encoder->Encode(nullptr, nullptr) : opened;
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

    Outcome Render() const
    {
        const Node clip = EngineFixture::Trimmed(m_engine.Colour(Qt::green), 0, kFrames - 1);
        const Node project = m_engine.ProjectWith(clip);
        Cache cache(project, In("cache"));
        if (cache.Start() == S_OK)
            cache.End();
        const bool isWhole = cache.Needed().isEmpty();
        return Outcome::Of(isWhole && !m_engine.Frame(project, kFrames - 1).isNull());
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
        QDir().mkpath(content);
        for (const char* name : {"a.txt", "b.txt"}) {
            QFile file(content + '/' + QLatin1String(name));
            if (file.open(QIODevice::WriteOnly))
                file.write(QByteArray(100000, name[0]));
        }
        QuaZipOperate::CompressDir(archive, content);
    }
    static Left LookAtUnpacked(const QString& target)
    {
        const QDir folder(target);
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString& name : names) {
            const QByteArray content = EngineFixture::Contents(folder.filePath(name));
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
        const QByteArray content = EngineFixture::Contents(path);
        if (content.count("old") != kFrames || content.lastIndexOf("old") > content.size() - 4)
            return Left::Broken;
        return content.count("new") == kFrames ? Left::New : Left::Old;
    }

    EngineFixture& m_engine;
    const QString m_folder;
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
                                       work->Language(),
                                       work->Unzip(),
                                       work->Log()};
    for (Scenario& scenario : scenarios) // the work lives as long as they do
        scenario.prepare = [work, prepare = std::move(scenario.prepare)] { prepare(); };
    return scenarios;
}
