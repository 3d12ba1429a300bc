// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSaveFile>

namespace nle {

/// Puts what was written in its place. False, with what stood there before, when not all of it
/// could be written: commit() alone overlooks that the last that was gathered cannot be.
inline bool CommitWhole(QSaveFile& file)
{
    return file.flush() && file.commit();
}

} // namespace nle
