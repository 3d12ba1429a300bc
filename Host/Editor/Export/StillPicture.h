// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

#include <QImage>
#include <QString>

/// Pictures of single frames, in full quality whatever the project's previews are drawn at.
namespace StillPicture {

/// Frame \a frame of \a project at the project's own size. Null when it cannot be drawn; \a reason
/// then tells why, for people.
QImage Draw(const NLEComPtr<INLETimeline>& project, int frame, QString* reason);
/// Draws a frame and writes it; the suffix of \a path chooses the format. An empty text, else why
/// there is no picture.
QString Save(const NLEComPtr<INLETimeline>& project, int frame, const QString& path);

} // namespace StillPicture
