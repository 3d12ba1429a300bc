// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLatin1String>
#include <QMap>
#include <QString>

/// What writers and readers of documents agree on.
///
/// What a format has no place for is kept as texts by names that begin with "nle:"; other programs
/// ignore them. Names and texts are encoded, so that every text comes back.
namespace nle::document {

inline const QLatin1String kOwnPrefix("nle:");
/// Followed by the name of a property of MLT; holds as long as that one says the same.
inline const QLatin1String kExactPrefix("nle:exact:");
inline const QLatin1String kKind("nle:kind");
inline const QLatin1String kOrder("nle:order");
inline const QLatin1String kRange("nle:range");
inline const QLatin1String kRate("nle:rate");
inline const QLatin1String kSize("nle:size");
inline const QLatin1String kAudio("nle:audio");
inline const QLatin1String kBagPrefix("nle:bag:");
/// Followed by the name of a title's parameter.
inline const QLatin1String kTitlePrefix("nle:title:");
/// Name of a transition.
inline const QLatin1String kTransitionName("nle:transition");
/// Followed by the name of a parameter.
inline const QLatin1String kParameterPrefix("nle:parameter:");
/// Followed by the key of a project's context.
inline const QLatin1String kContextPrefix("nle:context:");
/// Of a filter that was written here: a sum of its properties and their names.
inline const QLatin1String kWritten("nle:written");
/// Of a track: what of it was written as hidden; not there for nothing.
inline const QLatin1String kWrittenHide("nle:written:hide");
/// Of a clip: how many filters of its sound and of its picture were written with it.
inline const QLatin1String kFilters("nle:filters");

inline const QLatin1String kProject("project");
inline const QLatin1String kComposite("composite");
inline const QLatin1String kMedia("media");
inline const QLatin1String kColor("color");
inline const QLatin1String kText("text");
inline const QLatin1String kTitle("title");
inline const QLatin1String kTransition("transition");
/// The empty track below all others.
inline const QLatin1String kBackground("background");
/// A track of clips that do not show: disabled ones and ones of no length.
inline const QLatin1String kUnplaced("unplaced");

} // namespace nle::document

namespace nle {

/// Texts of a document by their names.
using DocumentFields = QMap<QString, QString>;

} // namespace nle
