// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

/// What the system finds in a folder: Qt passes over names that are no valid text, and takes a
/// folder that it cannot read for an empty one. Nothing when the folder cannot be read.
std::optional<int> CountEntries(const QString& folder);
