// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/MoveOver_p.h"

#include "Com/PatientCall.h"
#include "Com/SystemPath.h"

bool MoveOver(const QString& file, const QString& target)
{
    const std::wstring from = SystemPath(file.toStdWString());
    const std::wstring to = SystemPath(target.toStdWString());
    return TryPatiently(
        [&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0; });
}
