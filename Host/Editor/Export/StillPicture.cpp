// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/StillPicture.h"

#include "CommonLib/NLEWraper/NLETimelineContextPropertyService.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("StillPicture", text);
}

struct Context : NLETimelineContextPropertyService
{
    explicit Context(const NLEComPtr<INLETimeline>& project)
    {
        m_basin = project.query<INLEBasin>();
    }
};

/// A copy that is drawn at its full size; null when there is none.
NLEComPtr<INLETimeline> FullSize(const NLEComPtr<INLETimeline>& project)
{
    NLEComPtr<INLETimeline> copy;
    if (project && SUCCEEDED(project->Clone(true, copy.put())))
        Context(copy).SetDoubleValue(NLEKey::Context::kContext_PreviewScale, 1);
    return copy;
}

NLESize SizeOf(const NLEComPtr<INLETimeline>& project)
{
    tagNLEProjectProfile profile = {};
    if (const auto setting = project.query<INLEProjectSetting>())
        setting->GetProfile(&profile);
    return profile.frameSize;
}

} // namespace

QImage StillPicture::Draw(const NLEComPtr<INLETimeline>& project, int frame, QString* reason)
{
    PlayerMaterProvider& provider = EngineProvider();
    const Reasons reasons(EngineFactory());
    const auto copy = FullSize(project);
    const NLESize size = SizeOf(copy);
    const auto picture = provider.CreateVideoFrame(size.width, size.height);
    const auto extractor = provider.CreateFrameExtractor();
    std::uint8_t* pixels = nullptr;
    if (picture && extractor && picture->Prepare() == S_OK &&
        extractor->Open(copy.get(), NLEOpen_Render) == S_OK &&
        extractor->Extract(frame, picture.get()) == S_OK && picture->GetData(&pixels) == S_OK)
        return QImage(pixels, size.width, size.height, QImage::Format_ARGB32).copy();
    if (reason)
        *reason = reasons.Of(Tr(QT_TRANSLATE_NOOP("StillPicture", "The frame cannot be drawn")));
    return {};
}

QString StillPicture::Save(const NLEComPtr<INLETimeline>& project, int frame, const QString& path)
{
    QString reason;
    const QImage picture = Draw(project, frame, &reason);
    if (picture.isNull())
        return reason;
    QImageWriter writer(path);
    if (writer.write(picture))
        return {};
    return Tr(QT_TRANSLATE_NOOP("StillPicture", "%1 is not written: %2"))
        .arg(QFileInfo(path).fileName(), writer.errorString());
}
