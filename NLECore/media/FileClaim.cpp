// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FileClaim.h"

#include "NLECore/media/SavedFile_p.h"

#include <cerrno>
#include <new>

namespace nle {

FileClaim::~FileClaim()
{
    if (!m_file.isOpen())
        return;
    // Without memory it stays, and is nobody's.
    try {
        RemoveAlone(m_file, m_path);
    } catch (const std::bad_alloc&) {
        return;
    }
}

bool FileClaim::Take()
{
    const int descriptor = OpenAlone(m_path);
    m_isOthers = descriptor < 0 && errno == EWOULDBLOCK;
    m_error = descriptor < 0 ? qt_error_string() : QString();
    return descriptor >= 0 &&
           m_file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

} // namespace nle
