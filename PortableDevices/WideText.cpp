// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/WideText.h"

#include "PortableDevices/GlibPointers.h"

namespace devices {

static_assert(sizeof(wchar_t) == sizeof(gunichar), "wide text holds whole characters");

std::wstring WideText(const char* text)
{
    if (!text)
        return {};
    const GPtr<char> valid(g_utf8_make_valid(text, -1));
    std::wstring wide;
    for (const char* at = valid.get(); *at; at = g_utf8_next_char(at))
        wide += static_cast<wchar_t>(g_utf8_get_char(at));
    return wide;
}

std::string Utf8Text(const wchar_t* text)
{
    if (!text)
        return {};
    static_assert(sizeof(wchar_t) == sizeof(gunichar));
    const std::u32string characters(text, text + std::char_traits<wchar_t>::length(text));
    const GPtr<char> utf8(g_ucs4_to_utf8(reinterpret_cast<const gunichar*>(characters.c_str()), -1,
                                         nullptr, nullptr, nullptr));
    return utf8 ? utf8.get() : "";
}

} // namespace devices
