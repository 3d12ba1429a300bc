// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <QDir>
#include <QHash>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace nle {

/// The settings of a node that are not their presets, as names and texts of document properties.
/// Files below \a folder are named relative to it.
std::vector<std::pair<QString, QString>> SettingsToText(const TimelineNode& node,
                                                        const QDir& folder);

/// Sets what \a properties say; what is missing or makes no sense stays as it is. \a media gives
/// the file of a name in the properties, offline when it is not there.
void SettingsFromText(const QHash<QString, QString>& properties,
                      const std::function<std::shared_ptr<const MediaInfo>(const QString&)>& media,
                      TimelineNode& node);

/// \a text with the characters that XML cannot carry, and the mark itself, as "%" and two
/// hexadecimal digits, or "%u" and four.
QString EncodeText(const QString& text);
/// What EncodeText was given; other uses of "%" stay as they are.
QString DecodeText(const QString& text);
/// \a text as XML can carry it: line ends as line feeds, U+FFFD for what it cannot.
QString PlainText(const QString& text);

/// \a text with every character, also a byte order mark in front and halves of characters beyond
/// the basic plane, which the toolkit's own conversions lose.
std::wstring ToWide(const QString& text);
QString FromWide(const std::wstring& text);

/// \a path relative to \a folder when it lies below it, else absolute.
QString DocumentPath(const QString& path, const QDir& folder);

} // namespace nle
