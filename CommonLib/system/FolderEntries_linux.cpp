// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/FolderEntries_p.h"

#include <QFile>

#include <filesystem>

std::optional<int> CountEntries(const QString& folder)
{
    std::error_code error;
    int count = 0;
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error))
        ++count;
    return error ? std::nullopt : std::optional<int>(count);
}
