// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <QString>
#include <QVector>

struct INLETimeline;

/// A file that the bin keeps with the project, and how clips are made of it.
struct BinEntry
{
    /// An empty range.
    static constexpr NLERange kNoMarks = {0, -1};

    QString path;
    QString proxy; ///< the film that stands for it in all clips; empty for none
    /// In and out point, both inclusive, in frames of the file at its own rate; empty for all of
    /// it.
    NLERange marks = kNoMarks;
};

using BinEntries = QVector<BinEntry>;

/// The entries in the property bag of \a project, which documents keep. What is damaged is left
/// out. Files that are there in their places below \a folder, that of the document, are those.
BinEntries ReadBinEntries(INLETimeline& project, const QString& folder);
/// Writes them in place of those that are there; with a \a folder also where below it they are.
/// False when the engine refuses.
bool WriteBinEntries(INLETimeline& project, const BinEntries& entries, const QString& folder = {});
