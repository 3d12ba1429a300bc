// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/MediaJob.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "Host/Console.h"
#include "Host/ContactSheet.h"
#include "Host/MediaReport.h"
#include "Host/MediaTimeline.h"
#include "Host/OutputFolder.h"
#include "Host/WaveSheet.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace {

constexpr unsigned int kSheetPictures = 12;

/// Why the file cannot even be handed to the engine; empty when it can. Opening anything but a
/// regular file might wait for ever.
QString Obstacle(const QFileInfo& file)
{
    if (!file.exists())
        return MediaJob::tr("does not exist");
    if (file.isDir())
        return MediaJob::tr("is a folder, not a media file");
    if (!file.isFile())
        return MediaJob::tr("is not a regular file");
    if (file.size() == 0)
        return MediaJob::tr("is empty");
    if (!file.isReadable())
        return MediaJob::tr("may not be read by this user");
    return {};
}

/// Frame numbers spread evenly from the first to the last, each one once.
QVector<int> SpreadFrames(unsigned int frames)
{
    const unsigned int count = qMin(frames, kSheetPictures);
    QVector<int> result;
    for (unsigned int index = 0; index < count; ++index)
        result << (count > 1 ? int(quint64(index) * (frames - 1) / (count - 1)) : 0);
    return result;
}

} // namespace

MediaJob::MediaJob(PlayerMaterProvider& provider, Console& console, OutputFolder& output)
    : m_provider(provider), m_console(console), m_output(output)
{
}

bool MediaJob::Run(const QString& path)
{
    m_path = path;
    m_console.Print();
    m_console.Print(path);
    const QString reason = Obstacle(QFileInfo(path));
    if (!reason.isEmpty()) {
        Explain(reason);
        return true;
    }
    const NLEComPtr<INLETimeline> node =
        m_provider.CreateMediaTimeline(QFileInfo(path).absoluteFilePath(), true);
    if (!node) {
        Explain(tr("cannot be read as media"));
        return true;
    }

    MediaTimeline timeline(node, ExactType_Unknown, nullptr);
    const MediaReport report(timeline);
    for (const QString& line : report.Lines())
        m_console.Print(QStringLiteral("  ") + line);
    if (report.PictureShape() > 0)
        return MakeContactSheet(timeline, report);
    if (report.audio)
        return MakeWaveSheet(timeline, report);
    Explain(tr("holds neither picture nor sound"));
    return true;
}

bool MediaJob::MakeContactSheet(NLETimeline& timeline, const MediaReport& report)
{
    const QVector<int> frames = SpreadFrames(report.frames);
    if (frames.isEmpty()) {
        Explain(tr("has no frames"));
        return true;
    }
    ContactSheet sheet(report.PictureShape(), frames.size());
    const QSize size = sheet.PictureSize();
    int failures = 0;
    for (int index = 0; index < frames.size(); ++index) {
        const int frame = frames[index];
        const QString timecode = gFrame2String(frame, report.rate);
        const bool last = index + 1 == frames.size();
        const QImage picture =
            timeline.GetThumbnailFromMediaInfo(frame, size.width(), size.height(), false, last);
        failures += picture.isNull() ? 1 : 0;
        if (report.image)
            sheet.Add(picture, {}, {});
        else
            sheet.Add(picture, timecode, tr("frame %1").arg(frame));
        const QString place = tr("picture %1 of %2: frame %3, %4")
                                  .arg(index + 1)
                                  .arg(frames.size())
                                  .arg(frame)
                                  .arg(timecode);
        m_console.Progress(QStringLiteral("  ") +
                           (picture.isNull() ? tr("%1, not decoded").arg(place) : place));
    }
    if (failures == frames.size()) {
        Explain(tr("none of its pictures can be decoded"));
        return true;
    }
    if (failures > 0)
        Explain(tr("%1 of %2 pictures cannot be decoded; the file may be damaged")
                    .arg(failures)
                    .arg(frames.size()));
    return Save(sheet.Paint(QFileInfo(m_path).fileName(), report.Summary()));
}

bool MediaJob::MakeWaveSheet(NLETimeline& timeline, const MediaReport& report)
{
    const NLEComPtr<INLEWaveExtractor> extractor = m_provider.CreateWaveExtractor();
    const NLEComPtr<INLEMediaInfo> info = timeline.GetTimelineMediaInfo();
    const double seconds = report.Seconds();
    bool measured =
        extractor && seconds > 0 &&
        SUCCEEDED(extractor->SetSource(info.get(), report.FirstStream(NLEStream_Audio)));

    // In parts, so that a long recording shows how far it is.
    constexpr int parts = 8;
    const int steps = WaveSheet::StepCount();
    QVector<float> minima(steps);
    QVector<float> maxima(steps);
    for (int part = 0; measured && part < parts; ++part) {
        const int first = steps * part / parts;
        const int count = steps * (part + 1) / parts - first;
        measured =
            SUCCEEDED(extractor->Extract(seconds * first / steps, seconds * count / steps, count,
                                         minima.data() + first, maxima.data() + first));
        m_console.Progress(QStringLiteral("  ") +
                           tr("wave form: part %1 of %2").arg(part + 1).arg(parts));
    }
    if (extractor)
        extractor->Finish();
    if (!measured) {
        Explain(tr("its sound cannot be decoded"));
        return true;
    }
    return Save(
        WaveSheet::Paint(QFileInfo(m_path).fileName(), report.Summary(), minima, maxima, seconds));
}

bool MediaJob::Save(const QImage& page)
{
    const QString path = m_output.PictureFor(m_path);
    if (!page.save(path)) {
        Explain(tr("the result cannot be written to %1").arg(path));
        return false;
    }
    m_console.Print(QStringLiteral("  ") + tr("written: %1").arg(QDir::toNativeSeparators(path)));
    return true;
}

void MediaJob::Explain(const QString& reason)
{
    m_console.Print(QStringLiteral("  %1: %2").arg(QFileInfo(m_path).fileName(), reason));
    GetGlobalLogInstance()->LogWarn("Host/MediaJob", "MediaJob::explain", __LINE__, "%s: %s",
                                    m_path.toUtf8().constData(), reason.toUtf8().constData());
}
