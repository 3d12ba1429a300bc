// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLETitle.h"
#include "NLECore/model/ParameterFacet.h"
#include "NLECore/model/SourceNodes.h"

namespace nle {

/// A title: text with all that INLEParameters sets of it, on a transparent picture as large as its
/// parent's.
class TitleClip final : public ComExtension<GeneratedClip, INLETitle>
{
public:
    /// \a size is that of the picture as long as there is no parent.
    TitleClip(NLESize size, const NLERational& frameRate);

    HRESULT QueryInterface(REFIID iid, void** out) override;

    HRESULT GetTextLength(int* length) override;
    HRESULT GetText(wchar_t* buffer, int capacity) override;
    HRESULT SetText(const wchar_t* text) override;
    HRESULT GetFont(wchar_t* buffer, int capacity) override;
    HRESULT SetFont(const wchar_t* family) override;
    HRESULT GetBounds(int frame, NLERectF* bounds) override;

    NLESize PictureSize() const override;
    ParameterFacet& Parameters() { return m_parameters; }
    const ParameterFacet& Parameters() const { return m_parameters; }
    QString Text() const;
    QString Font() const;

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;
    void RescaleTimes(double factor) override;

private:
    ParameterFacet m_parameters;
};

/// What a text clip or a title says and the font that it names.
struct WrittenText
{
    QString text;
    QString family;
};
/// None for other nodes.
std::optional<WrittenText> TextOf(const TimelineNode& node);

} // namespace nle
