// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SavedFile_p.h"

#include "Com/PatientCall.h"
#include "Com/SystemPath.h"

#include <cerrno>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

namespace nle {

namespace {

template <typename Call>
bool TryWithError(Call done, QString* error)
{
    if (TryPatiently(done))
        return true;
    *error = qt_error_string(int(GetLastError()));
    return false;
}

} // namespace

// Qt knows a full disk by its words only.
QFileDevice::FileError ErrorOf(const QFileDevice& file)
{
    const bool isFull = file.error() == QFileDevice::WriteError &&
                        (file.errorString() == qt_error_string(ERROR_DISK_FULL) ||
                         file.errorString() == qt_error_string(ERROR_HANDLE_DISK_FULL));
    return isFull ? QFileDevice::ResourceError : file.error();
}

int OpenAlone(const QString& path)
{
    int descriptor = -1;
    const int error = _wsopen_s(&descriptor, SystemPath(path.toStdWString()).c_str(),
                                _O_RDWR | _O_CREAT | _O_TRUNC | _O_BINARY | _O_NOINHERIT,
                                _SH_DENYRW, _S_IREAD | _S_IWRITE);
    if (error == 0)
        return descriptor;
    errno = GetLastError() == ERROR_SHARING_VIOLATION ? EWOULDBLOCK : error;
    return -1;
}

// Open files are neither removed nor moved here.
void RemoveAlone(QFile& file, const QString& path)
{
    file.close();
    QFile::remove(path);
}

bool RemoveLeft(const QString& path)
{
    return DeleteFileW(SystemPath(path.toStdWString()).c_str()) ||
           GetLastError() == ERROR_FILE_NOT_FOUND;
}

bool WriteThrough(const QFile& file)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
}

bool MayBeReplaced(const QString& path, QString* error)
{
    const std::wstring name = SystemPath(path.toStdWString());
    constexpr DWORD anyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const auto open = [&] {
        const HANDLE file =
            CreateFileW(name.c_str(), DELETE, anyone, nullptr, OPEN_EXISTING, 0, nullptr);
        return file != INVALID_HANDLE_VALUE && CloseHandle(file);
    };
    return TryWithError(open, error);
}

bool MoveOver(const QString& file, const QString& target, QString* error)
{
    const std::wstring from = SystemPath(file.toStdWString());
    const std::wstring to = SystemPath(target.toStdWString());
    const auto move = [&] {
        return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
    };
    return TryWithError(move, error);
}

bool MoveAlone(QFile& file, const QString& path, const QString& target, QString* error)
{
    file.close();
    return MoveOver(path, target, error);
}

} // namespace nle
