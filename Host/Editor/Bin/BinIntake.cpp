// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinIntake.h"

#include "Host/Editor/Bin/MediaBin.h"
#include "Host/Editor/Model/Project.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <utility>

namespace {

/// Of a folder; more than that is no choice of media.
constexpr int kMostFiles = 10000;

QStringList FilesIn(const QString& folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext() && files.size() < kMostFiles)
        files << it.next();
    files.sort();
    return files;
}

QStringList AllFiles(const QStringList& paths)
{
    QStringList files;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.isDir())
            files << FilesIn(info.absoluteFilePath());
        else
            files << info.absoluteFilePath();
    }
    files.removeDuplicates();
    return files;
}

bool IsMedia(const MediaDescription& description)
{
    return description.report && (description.report->video || description.report->audio);
}

} // namespace

BinIntake::BinIntake(Project& project, MediaBin& bin, QObject* parent) : QObject(parent), m_bin(bin)
{
    connect(&m_describer, &MediaDescriber::Described, this, &BinIntake::TakeDescription);
    connect(&project, &Project::Replaced, this, [this] {
        m_order.clear();
        m_waiting.clear();
        m_refused.clear();
        Q_EMIT Progressed();
    });
}

void BinIntake::Take(const QStringList& paths)
{
    for (const QString& file : AllFiles(paths)) {
        if (m_order.contains(file))
            continue;
        m_order << file;
        m_waiting.insert(file);
        m_describer.Describe(file);
    }
    Q_EMIT Progressed();
    if (m_waiting.isEmpty())
        Finish();
}

void BinIntake::TakeDescription(const MediaDescription& description)
{
    if (!m_waiting.remove(description.path))
        return;
    if (!IsMedia(description))
        m_refused.insert(description.path, description.reason);
    Q_EMIT Progressed();
    if (m_waiting.isEmpty())
        Finish();
}

void BinIntake::Finish()
{
    QStringList added;
    QStringList refused;
    const QHash<QString, QString> reasons = std::exchange(m_refused, {});
    for (const QString& file : std::exchange(m_order, {}))
        (reasons.contains(file) ? refused : added) << file;
    const int before = m_bin.Files().size();
    m_bin.Add(added);
    Q_EMIT Ended(m_bin.Files().size() - before, refused, reasons.value(refused.value(0)));
}
