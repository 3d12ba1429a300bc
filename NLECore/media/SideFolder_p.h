// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/FileClaim.h"

#include <QFileInfo>

#include <memory>

namespace nle {

/// A folder beside a file, removed with what is in it. That of a process that was killed is emptied
/// and taken over by the next one beside any file there.
class SideFolder
{
public:
    explicit SideFolder(const QFileInfo& file);
    ~SideFolder();
    SideFolder(const SideFolder&) = delete;
    SideFolder& operator=(const SideFolder&) = delete;

    bool IsValid() const { return m_claim != nullptr; }
    /// Why there is none.
    const QString& Error() const { return m_error; }
    QString FilePath(const QString& name) const;

private:
    bool Take(const QString& path);
    void Empty() const;

    QString m_path;
    QString m_error;
    std::unique_ptr<FileClaim> m_claim; ///< in the folder
};

} // namespace nle
