// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFileInfo>
#include <QTemporaryDir>

#include <new>

namespace nle {

/// A folder beside a file, removed with what is in it.
class SideFolder
{
public:
    SideFolder(const QFileInfo& file, const char* name)
        : m_folder(file.absolutePath() + QStringLiteral("/%1-XXXXXX").arg(QLatin1String(name)))
    {
        m_folder.setAutoRemove(false);
    }
    ~SideFolder()
    {
        // The folder's own destructor ends the process when memory is out.
        try {
            m_folder.remove();
        } catch (const std::bad_alloc&) {
        }
    }
    SideFolder(const SideFolder&) = delete;
    SideFolder& operator=(const SideFolder&) = delete;

    QTemporaryDir* operator->() { return &m_folder; }

private:
    QTemporaryDir m_folder;
};

} // namespace nle
