// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/TitleClip.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/FontFiles.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/render/TitlePicture.h"

namespace nle {

namespace {

constexpr const wchar_t* kText = L"text";
constexpr const wchar_t* kFont = L"font";

} // namespace

TitleClip::TitleClip(NLESize size, const NLERational& frameRate)
    : ComExtension(frameRate, size)
    , m_parameters(static_cast<INLETimeline&>(*this), this, TitleDeclaration())
{
}

HRESULT TitleClip::QueryInterface(REFIID iid, void** out)
{
    if (!out || !ComDetail::Offer<INLEParameters>(&m_parameters, iid, out))
        return ComExtension::QueryInterface(iid, out);
    AddRef();
    return S_OK;
}

HRESULT TitleClip::GetTextLength(int* length)
{
    return ComGuard([&] {
        return GiveValue(length, int(m_parameters.Shared()->Text(TitleTextIndex()).size()));
    });
}

HRESULT TitleClip::GetText(wchar_t* buffer, int capacity)
{
    return m_parameters.GetText(kText, buffer, capacity);
}

HRESULT TitleClip::SetText(const wchar_t* text)
{
    return m_parameters.SetText(kText, text);
}

HRESULT TitleClip::GetFont(wchar_t* buffer, int capacity)
{
    return m_parameters.GetText(kFont, buffer, capacity);
}

HRESULT TitleClip::SetFont(const wchar_t* family)
{
    return m_parameters.SetText(kFont, family);
}

HRESULT TitleClip::GetBounds(int frame, NLERectF* bounds)
{
    return ComGuard([&] {
        const NLESize size = PictureSize();
        const QRectF place =
            TitlePainter().Place(MomentOf(*MakeSnapshot(), frame), size,
                                 QSize(std::max(1, size.width), std::max(1, size.height)));
        return GiveValue(bounds,
                         NLERectF{place.x() / size.width, place.y() / size.height,
                                  place.width() / size.width, place.height() / size.height});
    });
}

NLESize TitleClip::PictureSize() const
{
    return Parent() ? Parent()->PictureSize() : GeneratedClip::PictureSize();
}

QString TitleClip::Text() const
{
    return FromWide(m_parameters.Shared()->Text(TitleTextIndex()));
}

QString TitleClip::Font() const
{
    return FromWide(m_parameters.Shared()->Text(TitleFontIndex()));
}

NLEComPtr<TimelineNode> TitleClip::CopyContent(bool /*deep*/) const
{
    NLEComPtr<TitleClip> copy = MakeCom<TitleClip>(PictureSize(), FrameRate());
    copy->m_parameters.Restore(*m_parameters.Shared());
    return copy;
}

void TitleClip::Describe(Layer& layer) const
{
    layer.kind = LayerKind::Title;
    layer.title = m_parameters.Shared();
    layer.family = Fonts().Provide(Font());
}

void TitleClip::RescaleTimes(double factor)
{
    m_parameters.RescaleAxis(factor);
}

std::optional<WrittenText> TextOf(const TimelineNode& node)
{
    if (const auto* text = dynamic_cast<const TextClip*>(&node))
        return WrittenText{text->Text(), text->Family()};
    if (const auto* title = dynamic_cast<const TitleClip*>(&node))
        return WrittenText{title->Text(), title->Font()};
    return std::nullopt;
}

} // namespace nle
