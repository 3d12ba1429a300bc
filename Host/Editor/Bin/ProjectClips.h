// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

#include <QHash>
#include <QString>
#include <QVector>

/// Clips of media by the path of their file.
using ClipsByFile = QHash<QString, QVector<NLEComPtr<INLETimeline>>>;

/// The file that \a node plays; empty when it plays none.
QString FileOf(INLETimeline& node);
/// All clips of media in \a composite and in the composites that it holds.
ClipsByFile FindClips(const NLEComPtr<INLETimeline>& composite);

/// Lets \a clip play \a file. False, and the clip is as it was, when the engine cannot read it; a
/// file that is missing is taken with \a allowMissing, and the clip is offline then.
bool RelinkClip(const NLEComPtr<INLETimeline>& clip, const QString& file, bool allowMissing);
/// Shows the film \a proxy in place of the file; the file itself for an empty one.
bool SetProxy(const NLEComPtr<INLETimeline>& clip, const QString& proxy);
