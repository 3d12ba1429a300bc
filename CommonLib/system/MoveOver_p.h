// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Renames \a file, in one step over what is at \a target. False, with what was there before, when
/// that fails.
bool MoveOver(const QString& file, const QString& target);
