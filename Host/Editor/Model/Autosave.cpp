// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Autosave.h"

#include "Host/Editor/Model/Project.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QUndoStack>
#include <QUuid>

namespace {

const char kLock[] = "lock";
const char kDocument[] = "project.mlt";
const char kPath[] = "path.txt";

QString FileIn(const QString& folder, const char* name)
{
    return QDir(folder).filePath(QLatin1String(name));
}

std::unique_ptr<QLockFile> LockOf(const QString& folder)
{
    auto lock = std::make_unique<QLockFile>(FileIn(folder, kLock));
    lock->setStaleLockTime(0); // however old: until its process has ended
    return lock;
}

void RemoveFolder(const QString& folder)
{
    QDir(folder).removeRecursively();
}

QString TextOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

Autosave::Autosave(Project& project, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_project(project)
    , m_folder(folder)
    , m_own(QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces)))
{
    QDir().mkpath(m_own);
    m_lock = LockOf(m_own);
    m_lock->lock();
    m_timer.setSingleShot(true);
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::Write);
    connect(&project.Steps(), &QUndoStack::indexChanged, this, &Autosave::Note);
    connect(&project, &Project::ModifiedChanged, this, &Autosave::Note);
    connect(&project, &Project::Replaced, this, &Autosave::Note);
}

Autosave::~Autosave()
{
    m_project.disconnect(this);
    m_lock->unlock();
    RemoveFolder(m_own);
}

QString Autosave::Document() const
{
    return FileIn(m_own, kDocument);
}

void Autosave::Note()
{
    if (!m_project.IsModified()) {
        m_timer.stop();
        QFile::remove(Document());
    } else if (!m_timer.isActive()) {
        m_timer.start(); // and is not put off by what comes meanwhile
    }
}

void Autosave::Write()
{
    QSaveFile path(FileIn(m_own, kPath));
    if (path.open(QIODevice::WriteOnly)) {
        path.write(m_project.Path().toUtf8());
        path.commit();
    }
    m_project.SaveCopy(Document());
}

QVector<Autosave::Leftover> Autosave::Leftovers() const
{
    QVector<Leftover> leftovers;
    const QFileInfoList folders = QDir(m_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : folders) {
        const QString folder = info.absoluteFilePath();
        if (info.fileName() == QFileInfo(m_own).fileName())
            continue;
        std::shared_ptr<QLockFile> lock = LockOf(folder);
        if (!lock->tryLock(0))
            continue; // it runs
        const QFileInfo document(FileIn(folder, kDocument));
        const Leftover leftover = {folder, document.filePath(), TextOf(FileIn(folder, kPath)),
                                   document.lastModified(), lock};
        if (document.exists())
            leftovers << leftover;
        else
            Discard(leftover);
    }
    return leftovers;
}

bool Autosave::Recover(const Leftover& leftover)
{
    if (!m_project.Recover(leftover.document, leftover.path))
        return false;
    Write();
    Discard(leftover);
    return true;
}

void Autosave::Discard(const Leftover& leftover)
{
    leftover.lock->unlock();
    RemoveFolder(leftover.folder);
}
