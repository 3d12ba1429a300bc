// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/PropertyBag.h"
#include "NLECore/scene/ClipSettings.h"

namespace nle {

/// Whether \a key is one of NLEKey::Source.
bool IsSourceKey(std::wstring_view key);
/// The setting under such a key, as the key describes it.
PropertyBag::Value SourceValue(const SourceSettings& settings, std::wstring_view key);
/// Sets what is under such a key; false, and nothing changed, for a value of another type and one
/// that the key does not accept. Whether a file has the streams it does not know.
bool SetSourceValue(SourceSettings& settings, std::wstring_view key,
                    const PropertyBag::Value& value);

} // namespace nle
