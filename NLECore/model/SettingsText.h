// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <QDir>
#include <QHash>

#include <utility>
#include <vector>

namespace nle {

/// The settings of a node that are not their presets, as names and texts of document properties.
/// Files below \a folder are named relative to it.
std::vector<std::pair<QString, QString>> SettingsToText(const TimelineNode& node,
                                                        const QDir& folder);

/// Sets what \a properties say; what is missing or makes no sense stays as it is.
void SettingsFromText(const QHash<QString, QString>& properties, const QDir& folder,
                      TimelineNode& node);

/// \a text with the characters that XML cannot carry, and the mark itself, as "%" and two
/// hexadecimal digits.
QString EncodeText(const QString& text);
/// What EncodeText was given; other uses of "%" stay as they are.
QString DecodeText(const QString& text);

/// \a path relative to \a folder when it lies below it, else absolute.
QString DocumentPath(const QString& path, const QDir& folder);

} // namespace nle
