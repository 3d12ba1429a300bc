// SPDX-License-Identifier: LGPL-2.1-or-later
// A utilities module whose answer is told by the name of the value that it is asked for.
#include <QtGlobal>

#include <algorithm>
#include <cwchar>
#include <string>

static std::wstring s_file;

extern "C" Q_DECL_EXPORT int LoadCustomizeXMLFileW(const wchar_t* path)
{
    s_file = path;
    return 0;
}

extern "C" Q_DECL_EXPORT int ReadCustomizeInfoW(const wchar_t* name, const wchar_t* group,
                                                wchar_t* buffer, int capacity, int reserved1,
                                                int reserved2)
{
    const std::wstring order = name;
    const std::wstring answer =
        order == L"file"
            ? s_file
            : std::wstring(group) + L' ' + std::to_wstring(capacity + reserved1 + reserved2);
    if (order == L"all characters, no end")
        std::fill_n(buffer, capacity, L'x');
    else if (order != L"nothing")
        std::copy_n(answer.c_str(), std::min<std::size_t>(answer.size() + 1, 256), buffer);
    return order == L"failure" ? 0 : -1;
}
