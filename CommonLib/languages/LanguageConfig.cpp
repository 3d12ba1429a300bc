// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/languages/LanguageConfig_p.h"

#include "CommonLib/system/MoveOver_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace {

const char kNameKey[] = "System/DefInstallLang";
const char kProductKey[] = "System/ProductID";

/// An ini file of ours is far shorter; Qt would read all of a longer one into memory.
constexpr qint64 kLongest = qint64(1024) * 1024;

/// Nothing when it cannot be read.
std::optional<QByteArray> ContentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.readAll();
    return file.error() == QFile::NoError ? std::optional(content) : std::nullopt;
}

/// Whether \a settings are those of a file with this \a content. Where reading fails Qt may take
/// the file for an empty one.
bool AreRead(const QSettings& settings, const std::optional<QByteArray>& content)
{
    return content && settings.status() != QSettings::AccessError &&
           !(settings.allKeys().isEmpty() && content->contains("\nDefInstallLang"));
}

/// A folder beside a file, for a copy that Qt changes and then takes the file's place: where Qt is
/// interrupted it leaves files with names of its own. It goes with all that is in it.
class HalfWritten
{
public:
    explicit HalfWritten(const QFileInfo& file)
        : m_folder(file.dir().filePath('.' + file.fileName() + QStringLiteral(".half")))
    {
        m_folder.removeRecursively(); // of a process that was killed
        m_isThere = QDir().mkdir(m_folder.path());
    }
    ~HalfWritten()
    {
        if (m_isThere)
            m_folder.removeRecursively();
    }
    HalfWritten(const HalfWritten&) = delete;
    HalfWritten& operator=(const HalfWritten&) = delete;

    QString Path(const QString& name) const { return m_folder.filePath(name); }

private:
    QDir m_folder;
    bool m_isThere = false;
};

/// Whether \a content is what was to be written. Of a full disk Qt does not tell, and ends where it
/// ended.
bool IsWhole(const std::optional<QByteArray>& content, const QString& name)
{
    return content && content->contains("DefInstallLang=" + name.toLatin1()) &&
           content->contains("ProductID=") && content->endsWith('\n');
}

} // namespace

LanguageConfig::LanguageConfig(QString path) : m_path(std::move(path)) {}

bool LanguageConfig::IsUsable() const
{
    const QFileInfo info(m_path);
    return info.isFile() && info.size() <= kLongest;
}

void LanguageConfig::CreateWhenMissing() const
{
    if (QFileInfo::exists(m_path))
        return;
    QFile file(m_path);
    file.open(QIODevice::ReadWrite);
}

std::optional<QString> LanguageConfig::Name() const
{
    if (!IsUsable())
        return QString();
    const QSettings settings(m_path, QSettings::IniFormat);
    if (!AreRead(settings, ContentOf(m_path)))
        return std::nullopt;
    return settings.value(kNameKey).toString();
}

void LanguageConfig::Store(const QString& name, const QString& product) const
{
    if (!IsUsable())
        return;
    const QFileInfo target(QFileInfo(m_path).canonicalFilePath()); // links are followed
    const HalfWritten half(target);
    const QString copy = half.Path(target.fileName());
    const std::optional<QByteArray> before = ContentOf(target.filePath());
    if (!QFile::copy(target.filePath(), copy) || ContentOf(copy) != before)
        return;
    {
        // Both values go out in one step when the settings are destroyed.
        QSettings settings(copy, QSettings::IniFormat);
        if (!AreRead(settings, before))
            return;
        settings.setValue(kNameKey, name);
        settings.setValue(kProductKey, product);
    }
    if (IsWhole(ContentOf(copy), name))
        MoveOver(copy, target.filePath());
}
