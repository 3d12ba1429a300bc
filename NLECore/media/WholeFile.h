// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>

namespace nle {

/// A file that is written beside the one that it then replaces, as a whole or not at all and with
/// the same permissions. What a process that was killed had half written goes when the same file is
/// written again. A link is followed.
class WholeFile : public QFile
{
public:
    explicit WholeFile(const QString& path);
    /// What was not committed goes.
    ~WholeFile() override;

    /// The name of the file that one of the name \a half is to become; empty when it is none such.
    static QString NameOf(const QString& half);

    /// The file that is replaced.
    const QString& Target() const { return m_target; }

    /// False, with errorString(), when there is something else than a file that can be written, or
    /// no place beside it.
    bool open(OpenMode mode) override;
    /// Puts what was written in its place and closes. False, with errorString() and what stood
    /// there before, when not all of it could be written.
    bool Commit();

protected:
    /// Gives the system what was gathered. False, with error(), when it does not take all of it: of
    /// a disk that becomes full it takes a part first, which flush() alone has no error for.
    bool FlushAll();
    qint64 writeData(const char* data, qint64 size) override;

private:
    void Drop();

    QString m_target;
    QString m_half; ///< what is being written; empty when nothing is
};

} // namespace nle
