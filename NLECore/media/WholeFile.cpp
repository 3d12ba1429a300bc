// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WholeFile.h"

#include "NLECore/media/SavedFile_p.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <new>

namespace nle {

namespace {

/// So many may write one file at a time; the last to end wins.
constexpr int kMostWriters = 9;

QString HalfOf(const QFileInfo& target, int number)
{
    const QString part = number == 1 ? QString() : QStringLiteral(".%1").arg(number);
    return target.absoluteDir().filePath(QStringLiteral(".%1%2.half").arg(target.fileName(), part));
}

} // namespace

WholeFile::WholeFile(const QString& path) : m_target(path)
{
    const QFileInfo file(path);
    if (file.isSymLink())
        m_target = file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
}

QString WholeFile::NameOf(const QString& half)
{
    static const QRegularExpression pattern(QStringLiteral("^\\.(.+?)(\\.[2-9])?\\.half$"));
    return pattern.match(half).captured(1);
}

WholeFile::~WholeFile()
{
    // Without memory it stays until the next writing.
    try {
        Drop();
    } catch (const std::bad_alloc&) {
        return;
    }
}

bool WholeFile::open(OpenMode mode)
{
    const QFileInfo target(m_target);
    if (target.exists() && !target.isFile()) {
        setErrorString(QStringLiteral("no regular file"));
        return false;
    }
    if (target.exists() && !target.isWritable()) {
        setErrorString(QStringLiteral("Permission denied"));
        return false;
    }
    QString reason;
    if (target.exists() && !MayBeReplaced(m_target, &reason)) {
        setErrorString(reason);
        return false;
    }
    int descriptor = -1;
    QString half;
    for (int number = 1; descriptor < 0 && number <= kMostWriters; ++number) {
        half = HalfOf(target, number);
        descriptor = OpenAlone(half);
        if (descriptor < 0 && errno != EWOULDBLOCK)
            break;
    }
    if (descriptor < 0) {
        setErrorString(qt_error_string());
        return false;
    }
    m_half = half;
    return QFile::open(descriptor, mode, AutoCloseHandle);
}

bool WholeFile::Commit()
{
    if (!isOpen() || !FlushAll() || !WriteThrough(*this))
        return false;
    if (exists(m_target))
        setPermissions(m_half, permissions(m_target));
    QString error;
    const bool isMoved = MoveAlone(*this, m_half, m_target, &error);
    if (isMoved)
        m_half.clear();
    Drop();
    if (!isMoved)
        setErrorString(error);
    return isMoved;
}

bool WholeFile::FlushAll()
{
    return flush() || (error() == NoError && flush());
}

qint64 WholeFile::writeData(const char* data, qint64 size)
{
    qint64 written = QFile::writeData(data, size);
    if (written < 0 && error() == NoError && FlushAll())
        written = QFile::writeData(data, size);
    if (written < 0 || written == size)
        return written;
    const qint64 rest = QFile::writeData(data + written, size - written);
    return rest < 0 ? rest : written + rest;
}

void WholeFile::Drop()
{
    if (isOpen())
        RemoveAlone(*this, m_half);
    else if (!m_half.isEmpty())
        remove(m_half);
    m_half.clear();
}

} // namespace nle
