// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Parameters.h"

#include <algorithm>

namespace nle {

inline const NameRow& NamesOf(const Declaration& declaration)
{
    return declaration.names;
}
template <typename Kind>
const NameRow& NamesOf(const Kind& kind)
{
    return kind.declaration.names;
}

/// The one of \a all that goes by \a name; null for none.
template <typename Kind>
const Kind* FindNamed(const std::vector<Kind>& all, const QString& name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&name](const Kind& kind) {
        return name == QLatin1String(NamesOf(kind).name);
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace nle
