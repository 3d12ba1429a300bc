// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>
#include <QString>

namespace nle {

/// A file that one object has at a time, among all processes. It goes with the object; what a
/// process that was killed left is taken over.
class FileClaim
{
public:
    explicit FileClaim(const QString& path) : m_path(path) {}
    ~FileClaim();
    FileClaim(const FileClaim&) = delete;
    FileClaim& operator=(const FileClaim&) = delete;

    /// False when another one has it (IsOthers()) or it cannot be made (Error()).
    bool Take();
    bool IsOthers() const { return m_isOthers; }
    const QString& Error() const { return m_error; }

private:
    const QString m_path;
    QFile m_file;
    QString m_error;
    bool m_isOthers = false;
};

} // namespace nle
