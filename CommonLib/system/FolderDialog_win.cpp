// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/FolderDialog_p.h"

#include "Com/WideText.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

QString ChooseFolder(const QString& title, quint64 owner)
{
    const std::wstring prompt = ToWide(title);
    BROWSEINFOW info = {};
    info.hwndOwner = reinterpret_cast<HWND>(static_cast<quintptr>(owner));
    info.pidlRoot = nullptr; // the desktop
    info.lpszTitle = prompt.c_str();
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_BROWSEFORCOMPUTER;
    const LPITEMIDLIST item = ::SHBrowseForFolderW(&info);
    if (!item)
        return QString();
    wchar_t path[MAX_PATH] = {};
    const bool hasPath = ::SHGetPathFromIDListW(item, path);
    ::CoTaskMemFree(item);
    return hasPath ? FromWide(path) : QString();
}
