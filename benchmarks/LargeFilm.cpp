// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/LargeFilm.h"

#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "tests/support/TestMedia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

constexpr tagNLEProjectProfile kProfile = {{1280, 720}, {25, 1}, 48000, 2, 3};
constexpr int kMargin = 25;     // frames before and behind a clip
constexpr int kEffectEvery = 7; // clips
constexpr int kTitleLevel = 4;

/// One file that is there many times, with picture and sound.
QStringList MakeMedia(const QString& folder, int files)
{
    TestClip clip;
    clip.size = QSize(640, 360);
    clip.frames = LargeFilm::kFrames + 2 * kMargin;
    clip.audioCodec = QStringLiteral("aac");
    QStringList media;
    for (int number = 0; number < files; ++number) {
        const QString path = QDir(folder).filePath(QStringLiteral("clip %1.mp4").arg(number));
        const bool isMade =
            media.isEmpty() ? MakeTestClip(path, clip).isEmpty() : QFile::copy(media.first(), path);
        if (!isMade)
            return {};
        media << path;
    }
    return media;
}

NLEComPtr<INLETimeline> MakeClip(const QString& file)
{
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    NLEComPtr<INLETimeline> clip = provider->CreateMediaTimeline(file, false);
    const NLERange range = {kMargin, kMargin + LargeFilm::kFrames - 1};
    if (clip)
        clip->SetRange(&range);
    return clip;
}

bool Fill(Project& project, Selection& selection, const QStringList& media, int clips)
{
    bool isFilled = true;
    for (int index = 0; index < clips; ++index) {
        const int level = index % LargeFilm::kLevels;
        const int frame = index / LargeFilm::kLevels * LargeFilm::kFrames;
        if (level == kTitleLevel) {
            isFilled = isFilled &&
                       ClipActions::AddTitle(project, selection, QStringLiteral("Title"), frame);
            continue;
        }
        const auto clip = MakeClip(media[index % media.size()]);
        isFilled = isFilled && clip && project.Edit(QString(), [&](INLEEditing& editing) {
            return editing.Place(clip.get(), frame, level, 0);
        });
        if (index % kEffectEvery == 0)
            isFilled = isFilled && ClipActions::AddEffect(project, clip, NLECatalog_Effect,
                                                          QStringLiteral("drop-shadow"));
    }
    return isFilled;
}

} // namespace

LargeFilm LargeFilm::Make(const QString& folder, int clips, int files)
{
    LargeFilm film;
    film.media = MakeMedia(folder, files);
    Project project;
    Selection selection(project);
    const QString document = QDir(folder).filePath(QStringLiteral("film.mlt"));
    if (film.media.isEmpty() || !project.New(kProfile) ||
        !Fill(project, selection, film.media, clips) || !project.SaveAs(document))
        std::fputs("the film cannot be made\n", stderr);
    else
        film.document = document;
    return film;
}
