// SPDX-License-Identifier: LGPL-2.1-or-later
// Expressions and texts, parted by the first line feed.
#include "CommonLib/RegexOperation.h"
#include "Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const int end = text.indexOf('\n');
    const QString unset = QStringLiteral("as before");
    QString output = unset;
    const bool isFound = RegexOperation::RegexFindString(text.mid(end + 1), text.left(end), output);
    fuzz::Require(isFound || output == unset, "the output stays where nothing matches");
    return 0;
}
