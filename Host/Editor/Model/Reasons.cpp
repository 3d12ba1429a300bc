// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Reasons.h"

#include "Host/Editor/Model/Engine.h"
#include "Host/EngineText.h"

namespace {

constexpr int kLongestText = 512; // with the terminating zero

NLEComPtr<INLEReasons> ReasonsOf(const NLEComPtr<INLEFactory>& factory)
{
    NLEComPtr<INLEReasons> reasons;
    if (factory && FAILED(factory->GetReasons(reasons.put())))
        reasons.forget();
    return reasons;
}

QString TitleOf(INLEReasons& reasons, int reason)
{
    return EngineText<kLongestText>(
        [&](wchar_t* text, int capacity) { return reasons.GetTitle(reason, text, capacity); });
}

} // namespace

QString LastReason()
{
    const NLEComPtr<INLEReasons> reasons = ReasonsOf(EngineFactory());
    int reason = NLEReason_None;
    if (!reasons || reasons->GetLast(nullptr, &reason) != S_OK)
        return {};
    return TitleOf(*reasons, reason);
}

Reasons::Reasons(const NLEComPtr<INLEFactory>& factory) : m_reasons(ReasonsOf(factory))
{
    if (m_reasons)
        m_reasons->Forget();
}

QString Reasons::Of(const QString& action) const
{
    int reason = NLEReason_None;
    if (!m_reasons || m_reasons->GetLast(nullptr, &reason) != S_OK)
        return action;
    const QString title = TitleOf(*m_reasons, reason);
    QString words = EngineText<kLongestText>(
        [&](wchar_t* text, int capacity) { return m_reasons->GetWords(text, capacity); });
    if (reason == NLEReason_LevelLocked)
        words = QString::number(words.toInt() + 1); // as the heads of levels count
    const QString why = words.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, words);
    return QStringLiteral("%1: %2").arg(action, why);
}
