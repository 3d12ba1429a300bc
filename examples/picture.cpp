// SPDX-License-Identifier: LGPL-2.1-or-later
// example_picture MEDIA TIMECODE PICTURE: writes what a media file shows at a timecode.
#include <CommonLib/CommonLib.h>

#include <QGuiApplication>
#include <QImage>
#include <QTextStream>

namespace {

QString WritePicture(const QString& media, const QString& timecode, const QString& picture)
{
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const NLEComPtr<INLETimeline> clip = provider->CreateMediaTimeline(media, false);
    if (!clip)
        return QStringLiteral("%1 cannot be read as media").arg(media);
    NLETimeline timeline(clip, ExactType_Video, nullptr);
    const int frame = gString2Frame(timeline.GetRenderFrameRate(), timecode);
    if (frame < 0 || frame >= timeline.GetTotalLength())
        return QStringLiteral("%1 is no timecode between %2 and %3")
            .arg(timecode, gFrame2String(0, timeline.GetRenderFrameRate()),
                 gFrame2String(timeline.GetTotalLength() - 1, timeline.GetRenderFrameRate()));
    const QSize size = timeline.GetSourceSize().toSize();
    const QImage image =
        timeline.GetThumbnailFromMediaInfo(frame, size.width(), size.height(), false, true);
    if (image.isNull())
        return QStringLiteral("%1 shows nothing there").arg(media);
    return image.save(picture) ? QString() : QStringLiteral("%1 cannot be written").arg(picture);
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: example_picture MEDIA TIMECODE PICTURE\n";
        return 2;
    }
    const QString failure = WritePicture(arguments[1], arguments[2], arguments[3]);
    // All engine objects are gone by now; the engine's module goes last.
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    if (failure.isEmpty())
        return 0;
    QTextStream(stderr) << failure << '\n';
    return 1;
}
