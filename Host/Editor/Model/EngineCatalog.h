// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLETimeline.h"

#include <QString>
#include <QVector>

/// What the engine can make by name.
namespace EngineCatalog {

struct Entry
{
    QString name;  ///< stable, for Make()
    QString title; ///< for people, in their language
};

QVector<Entry> Entries(NLECatalogKind kind);
/// What \a name is called for people; the name itself when there is no such thing.
QString TitleOf(NLECatalogKind kind, const QString& name);
/// The name of a transition in the catalogue; empty for other nodes.
QString NameOf(const NLEComPtr<INLETimeline>& transition);
/// An effect, an audio filter or a transition with all at its presets; null when the engine
/// refuses.
NLEComPtr<INLETimeline> Make(NLECatalogKind kind, const QString& name);
/// A title of \a text; null when the engine refuses.
NLEComPtr<INLETimeline> MakeTitle(const QString& text);

} // namespace EngineCatalog
