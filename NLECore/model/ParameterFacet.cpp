// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/ParameterFacet.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/TimelineNode.h"

#include <QFileInfo>

#include <cmath>

namespace nle {

namespace {

HRESULT GiveText(const char* text, wchar_t* buffer, int capacity)
{
    return CopyText(QString::fromLatin1(text).toStdWString(), buffer, capacity);
}

/// There is no parameter of this name, or none of the kind that the call is for.
HRESULT NoName(const wchar_t* name)
{
    return Refuse(E_INVALIDARG, NLEReason_UnknownName, FromWide(name));
}

HRESULT NoIndex(int index)
{
    return Refuse(E_INVALIDARG, NLEReason_UnknownIndex, QString::number(index));
}

HRESULT OutOfRange(const ParameterRow& row)
{
    return RefuseRange(row.names.name, row.lowest, row.highest);
}

HRESULT NotAccepted(const ParameterRow& row, const std::wstring& text)
{
    const QString words = FromWide(text);
    if (row.kind != NLEParameter_File)
        return Refuse(E_FAIL, NLEReason_InvalidArgument, words);
    return Refuse(E_FAIL,
                  QFileInfo::exists(words) ? NLEReason_FileUnsupported : NLEReason_FileMissing,
                  words);
}

} // namespace

HRESULT GiveTitle(const char* title, wchar_t* buffer, int capacity)
{
    return CopyText(ToWide(Translated(title)), buffer, capacity);
}

/// A parameter by its name; \a row is null where there is none.
struct ParameterFacet::Found
{
    int index;
    const ParameterRow* row;

    bool IsNumber() const { return row && !row->IsText(); }
    bool IsText() const { return row && row->IsText(); }
    bool IsAnimated() const { return row && row->canAnimate; }
};

ParameterFacet::ParameterFacet(IUnknown& node, const TimelineNode* owner,
                               const Declaration& declaration)
    : NodeFacet(node), m_owner(owner), m_values(declaration)
{
}

ParameterFacet::Found ParameterFacet::Find(const wchar_t* name) const
{
    const int index = name ? Declared().IndexOf(FromWide(name)) : -1;
    return {index, index < 0 ? nullptr : &m_values.Row(index)};
}

void ParameterFacet::FollowRange()
{
    if (m_owner)
        m_values.FollowAxis(KeyFrameAxis::Of(m_owner->Range()));
}

void ParameterFacet::SetOwner(const TimelineNode* owner)
{
    FollowRange();
    m_owner = owner;
    if (m_owner)
        m_values.SetAxis(KeyFrameAxis::Of(m_owner->Range()));
    m_shared.reset();
}

void ParameterFacet::Join(const TimelineNode* owner)
{
    m_owner = owner;
    m_shared.reset();
}

SharedParameters ParameterFacet::Shared() const
{
    if (!m_shared || (m_owner && m_shared->Axis().length == 0)) {
        auto shared = std::make_shared<ParameterValues>(m_values);
        if (m_owner && shared->Axis().length == 0)
            shared->SetAxis(KeyFrameAxis::Of(m_owner->Range()));
        m_shared = std::move(shared);
    }
    return m_shared;
}

void ParameterFacet::Restore(const ParameterValues& values)
{
    m_values = values;
    m_shared.reset();
}

void ParameterFacet::RescaleAxis(double factor)
{
    m_values.RescaleAxis(factor);
    m_shared.reset();
}

HRESULT ParameterFacet::GetParameterCount(int* count)
{
    return GiveValue(count, int(Declared().parameters.size()));
}

HRESULT ParameterFacet::GetParameter(int index, NLEParameterRecord* record, wchar_t* name,
                                     int capacity)
{
    return ComGuard([&] {
        if (!record)
            return Refuse(E_POINTER);
        if (!Has(index))
            return NoIndex(index);
        *record = m_values.Row(index).Record();
        return capacity == 0 ? S_OK : GiveText(m_values.Row(index).names.name, name, capacity);
    });
}

HRESULT ParameterFacet::GetParameterTitle(int index, wchar_t* title, int capacity)
{
    return ComGuard([&] {
        return Has(index) ? GiveTitle(m_values.Row(index).names.title, title, capacity)
                          : NoIndex(index);
    });
}

const NameRow* ParameterFacet::ChoiceAt(int index, int choice) const
{
    if (!Has(index) || choice < 0 || choice >= int(m_values.Row(index).choices.size()))
        return nullptr;
    return &m_values.Row(index).choices[size_t(choice)];
}

HRESULT ParameterFacet::GetChoice(int index, int choice, wchar_t* name, int capacity)
{
    return ComGuard([&] {
        const NameRow* row = ChoiceAt(index, choice);
        return row ? GiveText(row->name, name, capacity) : NoIndex(Has(index) ? choice : index);
    });
}

HRESULT ParameterFacet::GetChoiceTitle(int index, int choice, wchar_t* title, int capacity)
{
    return ComGuard([&] {
        const NameRow* row = ChoiceAt(index, choice);
        return row ? GiveTitle(row->title, title, capacity) : NoIndex(Has(index) ? choice : index);
    });
}

HRESULT ParameterFacet::GetNumber(const wchar_t* name, double* value)
{
    return ComGuard([&] {
        const Found found = Find(name);
        return found.IsNumber() ? GiveValue(value, m_values.Number(found.index)) : NoName(name);
    });
}

HRESULT ParameterFacet::SetNumber(const wchar_t* name, double value)
{
    return ComGuard([&] {
        const Found found = Find(name);
        if (!found.row)
            return NoName(name);
        if (!m_values.SetNumber(found.index, value))
            return OutOfRange(*found.row);
        m_shared.reset();
        return S_OK;
    });
}

HRESULT ParameterFacet::GetText(const wchar_t* name, wchar_t* text, int capacity)
{
    return ComGuard([&] {
        const Found found = Find(name);
        return found.IsText() ? CopyText(m_values.Text(found.index), text, capacity) : NoName(name);
    });
}

HRESULT ParameterFacet::SetText(const wchar_t* name, const wchar_t* text)
{
    return ComGuard([&] {
        if (!text)
            return Refuse(E_POINTER);
        const Found found = Find(name);
        if (!found.IsText())
            return NoName(name);
        std::wstring own = text;
        if (!own.empty() && found.row->accepts && !found.row->accepts(own))
            return NotAccepted(*found.row, own);
        m_values.SetText(found.index, std::move(own));
        m_shared.reset();
        return S_OK;
    });
}

HRESULT ParameterFacet::GetKeyFrameCount(const wchar_t* name, int* count)
{
    return ComGuard([&] {
        const Found found = Find(name);
        return found.IsAnimated() ? GiveValue(count, int(m_values.Keys(found.index).size()))
                                  : NoName(name);
    });
}

HRESULT ParameterFacet::GetKeyFrame(const wchar_t* name, int index, NLEParameterKeyFrame* key)
{
    return ComGuard([&] {
        const Found found = Find(name);
        if (!found.IsAnimated())
            return NoName(name);
        if (index < 0 || index >= int(m_values.Keys(found.index).size()))
            return NoIndex(index);
        FollowRange();
        const ParameterKey& own = m_values.Keys(found.index)[size_t(index)];
        return GiveValue(key, NLEParameterKeyFrame{own.time, own.value, own.interpolation, 0});
    });
}

HRESULT ParameterFacet::PutKeyFrame(const wchar_t* name, const NLEParameterKeyFrame* key,
                                    int* index)
{
    return ComGuard([&] {
        if (!key)
            return Refuse(E_POINTER);
        const Found found = Find(name);
        if (!found.IsAnimated())
            return NoName(name);
        FollowRange();
        const int place = m_values.PutKey(
            found.index,
            {key->time, key->value, static_cast<NLEParameterInterpolation>(key->interpolation)});
        if (place < 0)
            return OutOfRange(*found.row);
        m_shared.reset();
        if (index)
            *index = place;
        return S_OK;
    });
}

HRESULT ParameterFacet::DeleteKeyFrame(const wchar_t* name, int index)
{
    return ComGuard([&] {
        const Found found = Find(name);
        if (!found.row)
            return NoName(name);
        if (!m_values.EraseKey(found.index, index))
            return NoIndex(index);
        m_shared.reset();
        return S_OK;
    });
}

HRESULT ParameterFacet::GetNumberAt(const wchar_t* name, double time, double* value)
{
    return ComGuard([&] {
        const Found found = Find(name);
        if (!found.IsNumber())
            return NoName(name);
        if (!std::isfinite(time))
            return Refuse(E_INVALIDARG);
        FollowRange();
        return GiveValue(value, m_values.NumberAtTime(found.index, time));
    });
}

} // namespace nle
