// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/MediaMime.h"

#include <QMimeData>
#include <QUrl>

QStringList MediaMime::Files(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

std::optional<NLERange> MediaMime::Range(const QMimeData& data)
{
    const QList<QByteArray> words = data.data(kRangeType).simplified().split(' ');
    if (data.urls().size() != 1 || words.size() != 2)
        return {};
    bool isIn = false;
    bool isOut = false;
    const NLERange range = {words[0].toInt(&isIn), words[1].toInt(&isOut)};
    if (!isIn || !isOut || NLERangeLength(range) <= 0)
        return {};
    return range;
}

QMimeData* MediaMime::Make(const QStringList& files, const NLERange& range)
{
    QList<QUrl> urls;
    for (const QString& file : files)
        urls << QUrl::fromLocalFile(file);
    auto* data = new QMimeData;
    data->setUrls(urls);
    if (urls.size() == 1 && NLERangeLength(range) > 0)
        data->setData(kRangeType, QByteArray::number(qint64(range.in)) + ' ' +
                                      QByteArray::number(qint64(range.out)));
    return data;
}
