// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipRow.h"

#include <QHash>

/// Reads rows from the engine's nodes. What clips of one file have in common is read once.
class ClipReader
{
public:
    /// The row of \a node, which must not be null.
    ClipRow Read(const NLEComPtr<INLETimeline>& node);
    void ForgetMedia() { m_media.clear(); }

private:
    void ReadSource(const NLEComPtr<INLETimeline>& node, ClipRow& row);
    std::shared_ptr<const ClipMedia> Media(INLETimelineSource& source);

    QHash<QString, std::shared_ptr<const ClipMedia>> m_media; ///< by path and streams
};
