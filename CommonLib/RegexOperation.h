// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>

/// Search by regular expression.
class COMMONLIB_EXPORT RegexOperation
{
public:
    /// Finds the first match of \a pattern, a case-sensitive Perl-compatible expression, and stores
    /// its first capture group (an empty text when it has none) in \a output.
    ///
    /// \return false, with \a output unchanged, when nothing matches or the pattern is malformed
    static bool RegexFindString(const QString& text, const QString& pattern, QString& output);
};
