// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FontFiles.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>

namespace nle {

namespace {

quint64 Stamp(const QFileInfo& file)
{
    constexpr quint64 spread = 1000003;
    return quint64(file.lastModified().toMSecsSinceEpoch()) * spread + quint64(file.size());
}

} // namespace

void FontFiles::SetCacheFile(const QString& path)
{
    m_cache.Open(path);
}

QStringList FontFiles::Scan(const QString& folder)
{
    QStringList families;
    if (folder.isEmpty() || !qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return families;
    const QDir dir(folder);
    const QFileInfoList files =
        dir.entryInfoList({"*.ttf", "*.otf", "*.ttc"}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        const QString path = file.absoluteFilePath();
        const std::optional<QStringList> known = m_cache.Find(file);
        const QStringList held = known ? *known : Register(path);
        if (!known)
            m_cache.Put(file, held);
        families += held;
        for (const QString& family : held)
            m_files[family.toLower()][path] = Stamp(file);
    }
    m_cache.Prune(dir.absolutePath(), files);
    m_cache.Save();
    families.removeDuplicates();
    return families;
}

QString FontFiles::Provide(const QString& family)
{
    const auto files = m_files.constFind(family.toLower());
    if (files == m_files.constEnd())
        return family;
    quint64 stamp = 0;
    for (auto file = files->constBegin(); file != files->constEnd(); ++file) {
        stamp ^= file.value();
        if (!m_registered.contains(file.key()))
            Register(file.key());
    }
    return family + QStringLiteral(",nle ") + QString::number(stamp, 16);
}

QStringList FontFiles::Register(const QString& path)
{
    m_registered.insert(path);
    const int id = QFontDatabase::addApplicationFont(path);
    if (id < 0)
        return {};
    // Qt for Windows takes damaged files, too, and tells no name.
    QStringList families = QFontDatabase::applicationFontFamilies(id);
    families.removeAll(QString());
    return families;
}

FontFiles& Fonts()
{
    static FontFiles s_files;
    return s_files;
}

} // namespace nle
