// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEReasons.h"

#include <QString>

/// Why the last call of the engine on this thread failed, in short; empty when nobody can say.
QString LastReason();

/// Why calls of this thread fail, for people. Forgets at its construction what failed before.
class Reasons
{
public:
    /// Null as without an engine.
    explicit Reasons(const NLEComPtr<INLEFactory>& factory);

    /// \a action and, after a colon, why it failed; \a action alone when nobody can say.
    QString Of(const QString& action) const;

private:
    NLEComPtr<INLEReasons> m_reasons;
};
