// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SideFolder_p.h"

#include <QDir>

#include <new>

namespace nle {

namespace {

/// So many may be in one folder at a time.
constexpr int kMost = 99;

const QLatin1String kClaimName("nlework.lock");
constexpr QDir::Filters kAll =
    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// Whether it is no folder of somebody else's with the same name.
bool IsOurs(const QFileInfo& there)
{
    const QDir folder(there.filePath());
    return there.isDir() && !there.isSymLink() &&
           (QFileInfo::exists(folder.filePath(kClaimName)) || folder.isEmpty(kAll));
}

} // namespace

SideFolder::SideFolder(const QFileInfo& file)
{
    const QString path = file.absoluteDir().filePath(QStringLiteral(".nlework"));
    for (int number = 1; number <= kMost; ++number) {
        if (Take(number == 1 ? path : path + QStringLiteral(".%1").arg(number)))
            return;
    }
}

SideFolder::~SideFolder()
{
    // Without memory it stays until the next one comes.
    try {
        if (!IsValid())
            return;
        Empty();
        m_claim.reset();
        QDir().rmdir(m_path);
    } catch (const std::bad_alloc&) {
        return;
    }
}

QString SideFolder::FilePath(const QString& name) const
{
    return QDir(m_path).filePath(name);
}

// Whether there is no need to look for another one.
bool SideFolder::Take(const QString& path)
{
    m_path = path;
    if (!QDir().mkdir(path)) {
        m_error = qt_error_string();
        const QFileInfo there(path);
        const bool isNone = !there.exists() && !there.isSymLink();
        if (isNone || !IsOurs(there))
            return isNone;
    }
    auto claim = std::make_unique<FileClaim>(FilePath(kClaimName));
    if (!claim->Take()) {
        m_error = claim->Error();
        return !claim->IsOthers();
    }
    m_claim = std::move(claim);
    Empty();
    return true;
}

void SideFolder::Empty() const
{
    for (const QFileInfo& entry : QDir(m_path).entryInfoList(kAll)) {
        if (entry.fileName() == kClaimName)
            continue;
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

} // namespace nle
