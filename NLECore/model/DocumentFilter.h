// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/SettingsText.h"

#include <optional>

namespace nle {

/// A filter of an MLT document.
struct DocumentFilter
{
    DocumentTexts properties;      ///< the service first
    std::optional<NLERange> range; ///< frames of what it is on; all without
};

/// A text by which FilterIsAsWritten knows the filter again.
QString FilterSum(const DocumentFilter& filter);
/// Whether a filter with these \a properties says what it did when \a sum was made of it; what
/// other programs have added does not count.
bool FilterIsAsWritten(const DocumentFields& properties, const QString& sum);

} // namespace nle
