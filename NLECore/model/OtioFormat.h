// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/TimelineNode.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1String>

#include <optional>

/// What writer and reader of OpenTimelineIO's JSON agree on.
namespace nle::otio {

/// Names the class of an object and its version: "Clip.1".
inline const QLatin1String kSchema("OTIO_SCHEMA");
/// Key in the metadata of an object under which this engine keeps what is its own: the texts of
/// document::kOwnPrefix, without that prefix.
inline const QLatin1String kOwn("nle");
/// The exact text and family of a text clip.
inline const QLatin1String kExactText("nle:exact:text");
inline const QLatin1String kExactFamily("nle:exact:family");
/// Kind of the track on which other programs find the sound of the track below it; not read.
inline const QLatin1String kTwin("twin");

/// Kind of a track that is off because of its level, which the composite keeps.
inline const QLatin1String kLevelOff("level-off");

/// The type of a transition that mixes the pictures.
inline const QLatin1String kDissolve("SMPTE_Dissolve");

/// Keys in the bag of a node for what it has no place for, as JSON where it is more than a text.
inline constexpr const wchar_t* kName = L"otio:name";
inline constexpr const wchar_t* kMetadata = L"otio:metadata";
inline constexpr const wchar_t* kMarkers = L"otio:markers";
/// The transition in front of the clip, and behind it.
inline constexpr const wchar_t* kTransitionBefore = L"otio:transition-before";
inline constexpr const wchar_t* kTransitionAfter = L"otio:transition-after";
/// Where the time of the file begins, in seconds.
inline constexpr const wchar_t* kMediaStart = L"otio:media-start";
/// Integer 1: the document did not name a file.
inline constexpr const wchar_t* kNoFile = L"otio:no-file";

/// The longest time that is counted with, in seconds.
constexpr double kLongest = 1e8;

/// A RationalTime and a TimeRange in units of 1 / \a rate seconds.
QJsonObject Time(double value, double rate);
QJsonObject TimeRange(double start, double duration, double rate);
/// A RationalTime in seconds; none when it is no time.
std::optional<double> Seconds(const QJsonObject& time);

/// What the bag of a node keeps under one of the keys above; empty where there is nothing.
QString KeptText(const TimelineNode& node, const wchar_t* key);
QJsonDocument KeptJson(const TimelineNode& node, const wchar_t* key);
/// kMediaStart of a node, 0 where it keeps none.
double MediaStart(const TimelineNode& node);

} // namespace nle::otio
