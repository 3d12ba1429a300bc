// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <QString>

/// A film that is to be written.
struct ExportOrder
{
    QString path; ///< whole
    QString
        preset; ///< stable name in the engine's catalogue; empty: the suffix of the path decides
    NLEEncodeSettings settings = {}; ///< what stands at 0 is the project's
    bool isPart = false;             ///< whether the range of the settings counts, else all
};
