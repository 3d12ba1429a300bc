// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <string>

namespace devices {

/// \a text as wide text; bytes that are not UTF-8 become U+FFFD. Null gives an empty text.
std::wstring WideText(const char* text);
/// \a text as UTF-8. Null and text with values that are no characters give an empty text.
std::string Utf8Text(const wchar_t* text);

} // namespace devices
