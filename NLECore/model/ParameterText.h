// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/SettingsText.h"
#include "NLECore/scene/Parameters.h"

namespace nle {

/// Adds what is not preset: "<prefix><name>" holds a text, or a number and behind semicolons its
/// key frames. Files below \a folder are named relative to it.
void AddParameterTexts(const ParameterValues& values, const QString& prefix, const QDir& folder,
                       DocumentTexts& texts);

/// Sets what \a properties say by names of that prefix; what is missing or makes no sense stays as
/// it is. \a media, if it is not null, tells where the files are.
void ReadParameterTexts(const DocumentFields& properties, const QString& prefix,
                        const FindMedia& media, ParameterValues& values);

} // namespace nle
