// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "Host/Editor/Bin/BinModel.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr double kUnknownRate = 25;

QString MarksText(const BinItem& item)
{
    const auto time = [&](int frame) { return gFrame2String(frame, float(item.Rate())); };
    return BinModel::tr("in %1, out %2").arg(time(item.entry.marks.in), time(item.entry.marks.out));
}

QString ProxyText(const BinItem& item)
{
    if (item.proxyPercent >= 0)
        return BinModel::tr("proxy: %1 %").arg(item.proxyPercent);
    if (!item.entry.proxy.isEmpty())
        return BinModel::tr("proxy: in use");
    return item.media.proxy.isEmpty() ? QString() : BinModel::tr("proxy: not in use");
}

} // namespace

QString BinItem::Name() const
{
    return QFileInfo(entry.path).fileName();
}

QString BinItem::Summary() const
{
    switch (media.state) {
    case MediaDescription::State::Unknown:
        return BinModel::tr("Reading…");
    case MediaDescription::State::Offline:
        return BinModel::tr("Offline");
    case MediaDescription::State::Unreadable:
        return BinModel::tr("Cannot be read");
    case MediaDescription::State::Ready:
        break;
    }
    return media.report->Summary();
}

QString BinItem::Brief() const
{
    if (!media.report || media.report->size.isEmpty())
        return Summary();
    return QStringLiteral("%1 × %2")
        .arg(media.report->size.width())
        .arg(media.report->size.height());
}

QStringList BinItem::Details() const
{
    QStringList lines{Summary()};
    if (media.report)
        lines = media.report->Lines();
    if (NLERangeLength(entry.marks) > 0)
        lines << MarksText(*this);
    lines << ProxyText(*this);
    lines << media.reason;
    lines << (uses > 0 ? BinModel::tr("%n clip(s) on the timeline", nullptr, uses)
                       : BinModel::tr("not on the timeline"));
    lines << QDir::toNativeSeparators(entry.path);
    lines.removeAll({});
    return lines;
}

int BinItem::Frames() const
{
    return media.report ? std::max(1, int(media.report->frames)) : 0;
}

double BinItem::Rate() const
{
    return media.report && media.report->rate > 0 ? double(media.report->rate) : kUnknownRate;
}

bool BinItem::IsFilm() const
{
    return media.report && media.report->video && !media.report->image;
}
