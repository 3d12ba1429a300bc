// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Whether Qt can load the translation file at \a path and look texts up in it.
///
/// Qt follows the lengths and offsets within a file without checking them, so that a damaged one
/// would end the process at some later text. False for a file that is damaged, is no translation
/// file, cannot be read, or depends on such a file or, in a circle, on itself.
bool IsSoundTranslationFile(const QString& path);
