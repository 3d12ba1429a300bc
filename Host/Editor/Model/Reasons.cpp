// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Reasons.h"

#include "Host/EngineText.h"

namespace {

constexpr int kLongestText = 512; // with the terminating zero

} // namespace

Reasons::Reasons(const NLEComPtr<INLEFactory>& factory)
{
    if (factory && FAILED(factory->GetReasons(m_reasons.put())))
        m_reasons.forget();
    if (m_reasons)
        m_reasons->Forget();
}

QString Reasons::Of(const QString& action) const
{
    int reason = NLEReason_None;
    if (!m_reasons || m_reasons->GetLast(nullptr, &reason) != S_OK)
        return action;
    const QString title = EngineText<kLongestText>(
        [&](wchar_t* text, int capacity) { return m_reasons->GetTitle(reason, text, capacity); });
    QString words = EngineText<kLongestText>(
        [&](wchar_t* text, int capacity) { return m_reasons->GetWords(text, capacity); });
    if (reason == NLEReason_LevelLocked)
        words = QString::number(words.toInt() + 1); // as the heads of levels count
    const QString why = words.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, words);
    return QStringLiteral("%1: %2").arg(action, why);
}
