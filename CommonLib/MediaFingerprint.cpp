// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/system/RegularFile_p.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <memory>

namespace {

constexpr quint64 kPieceSize = 163840;

quint64 ThreeTimes(quint64 size)
{
    constexpr quint64 max = std::numeric_limits<quint64>::max();
    return size > max / 3 ? max : 3 * size;
}

// Adds \a count bytes from where the file stands. False when the file ends before.
bool HashBytes(QFile& file, quint64 count, char* piece, QCryptographicHash& hash)
{
    while (count > 0) {
        const qint64 read = file.read(piece, static_cast<qint64>(std::min(count, kPieceSize)));
        if (read < 1)
            return false;
        hash.addData(piece, static_cast<int>(read));
        count -= static_cast<quint64>(read);
    }
    return true;
}

bool HashSamples(QFile& file, quint64 blockSize, QCryptographicHash& hash)
{
    const std::unique_ptr<char[]> piece(new char[kPieceSize]);
    const auto size = static_cast<quint64>(file.size());
    // Bounded by the size taken once, so a file that grows meanwhile is not followed.
    if (size <= ThreeTimes(blockSize))
        return HashBytes(file, size, piece.get(), hash);
    const quint64 step = (size - 3 * blockSize) / 2 + blockSize;
    for (quint64 block = 0; block < 3; ++block) {
        if (!file.seek(static_cast<qint64>(block * step)) ||
            !HashBytes(file, blockSize, piece.get(), hash))
            return false;
    }
    return true;
}

QString Fingerprint(quint64 blockSize, const QString& path, bool withTime)
{
    QFile file(path);
    if (!OpenRegularFile(file, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qDebug("file open error.");
        return QString();
    }
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!HashSamples(file, blockSize, hash))
        return QString();
    file.close();
    if (withTime) {
        const QFileInfo info(path);
        hash.addData(QStringLiteral("%1%2")
                         .arg(info.size())
                         .arg(info.lastModified().toMSecsSinceEpoch())
                         .toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

QString GetFileMd5(quint64 blockSize, const QString& path)
{
    return Fingerprint(blockSize, path, false);
}

QString GetFileMd5_V2(quint64 blockSize, const QString& path)
{
    return Fingerprint(blockSize, path, true);
}
