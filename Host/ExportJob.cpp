// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/ExportJob.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"
#include "Host/Console.h"
#include "Host/EncodePresets.h"
#include "Host/MediaJob.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// The format of a clip's pictures; full high definition, 25 of them a second, where it has none.
tagNLEProjectProfile ProfileOf(const NLEComPtr<INLETimeline>& clip)
{
    tagNLEProjectProfile profile = {{1920, 1080}, {25, 1}, 48000, 2, 3};
    const auto source = clip.query<INLETimelineSource>();
    NLEComPtr<INLEMediaInfo> info;
    std::uint32_t index = NLENoStream;
    NLEStreamInfo stream = {};
    if (source && source->GetMediaInfo(info.put()) == S_OK &&
        source->GetVideoStreamIndex(&index) == S_OK && info->GetStream(index, &stream) == S_OK &&
        stream.width > 1 && stream.height > 1) {
        profile.frameSize = {stream.width, stream.height};
        clip->GetRenderFrameRate(&profile.frameRate);
    }
    return profile;
}

} // namespace

ExportJob::ExportJob(PlayerMaterProvider& provider, Console& console)
    : m_provider(provider), m_console(console)
{
}

NLEComPtr<INLETimeline> ExportJob::MakeTimeline(const QStringList& media)
{
    NLEComPtr<INLETimeline> project;
    int position = 0;
    for (const QString& path : media) {
        const NLEComPtr<INLETimeline> clip =
            m_provider.CreateMediaTimeline(QFileInfo(path).absoluteFilePath(), true);
        if (clip && !project)
            project = m_provider.CreateProjectTimeline(ProfileOf(clip));
        if (!clip || !project ||
            FAILED(project.query<INLETimelineComposite>()->AddClip(clip.get()))) {
            m_console.Print(
                QStringLiteral("  %1: %2").arg(path, MediaJob::tr("cannot be read as media")));
            return {};
        }
        NLERange range = {};
        clip->SetPosition(position);
        clip->GetRange(&range);
        position += int(NLERangeLength(range));
    }
    return project;
}

bool ExportJob::TakePreset(const NLEComPtr<INLEMediaEncoder>& encoder, const QString& preset)
{
    if (preset.isEmpty())
        return true;
    const auto options = encoder.query<INLEEncodeOptions>();
    const auto settings = EncodePresets::Settings(m_provider, encoder, preset);
    if (options && settings)
        return options->SetOptions(settings.get()) == S_OK;
    m_console.Print(tr("There is no preset \"%1\".").arg(preset));
    return false;
}

bool ExportJob::ListPresets()
{
    const NLEComPtr<INLEMediaEncoder> encoder = m_provider.CreateMediaEncoder();
    const auto presets = EncodePresets::All(encoder);
    if (presets.isEmpty())
        m_console.Print(tr("The engine has no presets."));
    for (const EncodePresets::Preset& preset : presets)
        m_console.Print(preset.name == preset.title
                            ? preset.name
                            : QStringLiteral("%1 (%2)").arg(preset.name, preset.title));
    return !presets.isEmpty();
}

bool ExportJob::Run(const QStringList& media, const QString& path, const QString& preset)
{
    const NLEComPtr<INLETimeline> timeline = MakeTimeline(media);
    const NLEComPtr<INLEMediaEncoder> encoder = m_provider.CreateMediaEncoder();
    if (!timeline || !encoder || !TakePreset(encoder, preset))
        return false;
    const QString target = QFileInfo(path).absoluteFilePath();
    const auto note = [](int percent, void* self) {
        static_cast<ExportJob*>(self)->m_console.Progress(QStringLiteral("  ") +
                                                          tr("encoded: %1 %").arg(percent));
        return 0;
    };
    if (encoder->Open(timeline.get(), target.toStdWString().c_str(), nullptr) != S_OK ||
        encoder->Encode(note, this) != S_OK) {
        m_console.Print(tr("%1 is not written; the log tells why.").arg(path));
        return false;
    }
    m_console.Print(MediaJob::tr("written: %1").arg(QDir::toNativeSeparators(target)));
    return true;
}
