// SPDX-License-Identifier: LGPL-2.1-or-later
#include <CommonLib/CommonLib.h>
#include <EngineApi/INLEEditing.h>

#include <QGuiApplication>

#include <cstdio>

namespace {

int WatchNothing(int, void*)
{
    return 0;
}

/// What went wrong; null when nothing did.
const char* MakeFilm(const QString& media, const QString& document, const QString& film)
{
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    NLEComPtr<INLEFactory> factory;
    if (!CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                        INLEFactory::Iid, factory.putVoid()))
        return "no engine";
    const NLEComPtr<INLETimeline> project = provider->CreateProjectTimeline();
    const NLEComPtr<INLETimeline> clip = provider->CreateMediaTimeline(media, false);
    NLEComPtr<INLEEditing> editing;
    if (!clip || FAILED(factory->CreateEditing(project.get(), editing.put())))
        return "the media does not open";
    // The second half of the first second goes, and what follows closes up.
    if (editing->Place(clip.get(), 0, 0, 0) != S_OK ||
        editing->Extract(12, 25, NLEEdit_AllLevels) != S_OK)
        return "an edit failed";
    const int length = NLETimeline(project, ExactType_Project, nullptr).GetTotalLength();
    const auto serialize = provider->CreateDocumentSerialize();
    NLEComPtr<INLETimeline> loaded;
    if (FAILED(serialize->Save(project.get(), document.toStdWString().c_str())) ||
        FAILED(serialize->Load(document.toStdWString().c_str(), loaded.put())) ||
        NLETimeline(loaded, ExactType_Project, nullptr).GetTotalLength() != length)
        return "the document does not hold the project";
    const auto encoder = provider->CreateMediaEncoder();
    if (FAILED(encoder->Open(loaded.get(), film.toStdWString().c_str(), nullptr)) ||
        encoder->Encode(WatchNothing, nullptr) != S_OK)
        return "the export failed";
    const NLEComPtr<INLETimeline> made = provider->CreateMediaTimeline(film, false);
    return made && provider->GetTimelineLength(made) == length ? nullptr
                                                               : "the film has another length";
}

} // namespace

/// film MEDIA DOCUMENT FILM: edits a media file, saves the edit as a document and exports it.
int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    const char* failure = MakeFilm(arguments[1], arguments[2], arguments[3]);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    if (failure)
        std::fprintf(stderr, "%s\n%s\n", failure, qUtf8Printable(ModuleFolders().join('\n')));
    return failure ? 1 : 0;
}
