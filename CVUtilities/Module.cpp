// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CVUtilities/Customization.h"

#include <QtGlobal>

#include <algorithm>
#include <string>

namespace {

/// Longest value that is given, in wide characters without the terminating zero.
constexpr std::size_t kLongestValue = 255;

/// What the last load has read; one for the process, for one thread.
Customization& Loaded()
{
    static Customization s_customization;
    return s_customization;
}

} // namespace

/// Reads the customisation file at \a path. Non-zero when it was loaded; after a failure there are
/// no values at all.
extern "C" Q_DECL_EXPORT int LoadCustomizeXMLFileW(const wchar_t* path)
{
    // Nothing may be thrown into the caller, which may come from another compiler.
    try {
        return Loaded().Load(path ? QString::fromWCharArray(path) : QString()) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

/// Writes the value \a name of \a group into \a buffer, with a terminating zero.
///
/// Non-zero when it was written. 0 and an untouched buffer when there is no such value, when it is
/// longer than 255 wide characters, or does not fit into \a capacity with its zero: an address that
/// is cut leads elsewhere. The two last arguments are 0.
extern "C" Q_DECL_EXPORT int ReadCustomizeInfoW(const wchar_t* name, const wchar_t* group,
                                                wchar_t* buffer, int capacity, int /*reserved1*/,
                                                int /*reserved2*/)
{
    try {
        if (!name || !group || !buffer || capacity < 1)
            return 0;
        const auto value =
            Loaded().Value(QString::fromWCharArray(group), QString::fromWCharArray(name));
        if (!value)
            return 0;
        const std::wstring wide = value->toStdWString();
        if (wide.size() > kLongestValue || wide.size() >= static_cast<std::size_t>(capacity))
            return 0;
        std::copy_n(wide.c_str(), wide.size() + 1, buffer);
        return 1;
    } catch (...) {
        return 0;
    }
}
