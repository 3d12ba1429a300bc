// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/NodeFacets.h"
#include "NLECore/scene/Parameters.h"

namespace nle {

/// Copies what \a title is in the language of the application into a caller's buffer, as
/// CopyText().
HRESULT GiveTitle(const char* title, wchar_t* buffer, int capacity);

/// The parameters of a node. Key frames follow the trim range of the clip that owns them as those
/// of its picture do (see KeyFrameFacet).
class ParameterFacet final : public NodeFacet<INLEParameters>
{
public:
    /// \a owner is the clip that the times of key frames count in: the node itself or the one that
    /// it belongs to; null for none yet. \a declaration outlives the object.
    ParameterFacet(IUnknown& node, const TimelineNode* owner, const Declaration& declaration);

    HRESULT GetParameterCount(int* count) override;
    HRESULT GetParameter(int index, NLEParameterRecord* record, wchar_t* name,
                         int capacity) override;
    HRESULT GetParameterTitle(int index, wchar_t* title, int capacity) override;
    HRESULT GetChoice(int index, int choice, wchar_t* name, int capacity) override;
    HRESULT GetChoiceTitle(int index, int choice, wchar_t* title, int capacity) override;
    HRESULT GetNumber(const wchar_t* name, double* value) override;
    HRESULT SetNumber(const wchar_t* name, double value) override;
    HRESULT GetText(const wchar_t* name, wchar_t* text, int capacity) override;
    HRESULT SetText(const wchar_t* name, const wchar_t* text) override;
    HRESULT GetKeyFrameCount(const wchar_t* name, int* count) override;
    HRESULT GetKeyFrame(const wchar_t* name, int index, NLEParameterKeyFrame* key) override;
    HRESULT PutKeyFrame(const wchar_t* name, const NLEParameterKeyFrame* key, int* index) override;
    HRESULT DeleteKeyFrame(const wchar_t* name, int index) override;
    HRESULT GetNumberAt(const wchar_t* name, double time, double* value) override;

    const Declaration& Declared() const { return m_values.Declared(); }
    /// Gives the parameters to a clip, or takes them from it. The times of key frames stay as they
    /// are.
    void SetOwner(const TimelineNode* owner);
    /// As SetOwner(), but the key frames keep their frames.
    void Join(const TimelineNode* owner);
    /// The values as they are now, for layers, clones and documents; copied after a change only.
    SharedParameters Shared() const;
    /// Takes values of the same declaration over, with their axis.
    void Restore(const ParameterValues& values);
    /// The same material is counted in \a factor times as many frames from now on.
    void RescaleAxis(double factor);

private:
    struct Found;
    Found Find(const wchar_t* name) const;
    const NameRow* ChoiceAt(int index, int choice) const;
    bool Has(int index) const
    {
        return index >= 0 && index < int(m_values.Declared().parameters.size());
    }
    void FollowRange();

    const TimelineNode* m_owner;
    ParameterValues m_values;
    mutable SharedParameters m_shared; ///< null: to be made
};

} // namespace nle
