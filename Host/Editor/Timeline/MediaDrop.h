// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"
#include "EngineApi/NLETypes.h"

#include <QStringList>

#include <optional>

class QMimeData;

/// Media files that are dragged onto a timeline.
struct MediaDrop
{
    QStringList paths;
    std::optional<NLERange> range; ///< at the file's own rate

    /// Nothing when no local file is there.
    static std::optional<MediaDrop> Read(const QMimeData& data);
    /// Places clips of the files one behind the other, all or none; \a flags are of NLEEditFlags.
    HRESULT Place(INLEEditing& editing, int frame, int level, int flags) const;
};
