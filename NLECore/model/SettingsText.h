// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/TimelineNode.h"

#include <QDir>

#include <functional>
#include <utility>
#include <vector>

namespace nle {

/// Names and texts of document properties.
using DocumentTexts = std::vector<std::pair<QString, QString>>;
/// Gives the file of a name in a document, offline when it is not there.
using FindMedia = std::function<std::shared_ptr<const MediaInfo>(const QString&)>;

/// The settings of a node that are not their presets. Files below \a folder are named relative to
/// it.
DocumentTexts SettingsToText(const TimelineNode& node, const QDir& folder);

/// The names of files among \a properties that are settings.
QStringList MediaInSettings(const DocumentFields& properties);

/// Sets what \a properties say; what is missing or makes no sense stays as it is.
void SettingsFromText(const DocumentFields& properties, const FindMedia& media, TimelineNode& node);

} // namespace nle
