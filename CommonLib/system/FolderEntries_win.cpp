// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/FolderEntries_p.h"

#include "Com/SystemPath.h"

#include <QFileInfo>

#include <windows.h>

// Not by std::filesystem: that of mingw-w64 opens no folder whose path has more than 260
// characters.
std::optional<int> CountEntries(const QString& folder)
{
    WIN32_FIND_DATAW found = {};
    const QString all = QFileInfo(folder).absoluteFilePath() + QStringLiteral("/*");
    const HANDLE search =
        ::FindFirstFileExW(SystemPath(all.toStdWString()).c_str(), FindExInfoBasic, &found,
                           FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE) {
        const bool isEmpty = ::GetLastError() == ERROR_FILE_NOT_FOUND; // a drive's root
        return isEmpty ? std::optional<int>(0) : std::nullopt;
    }
    int count = 0;
    do {
        const std::wstring name = found.cFileName;
        count += name != L"." && name != L".." ? 1 : 0;
    } while (::FindNextFileW(search, &found));
    const bool isWhole = ::GetLastError() == ERROR_NO_MORE_FILES;
    ::FindClose(search);
    return isWhole ? std::optional<int>(count) : std::nullopt;
}
