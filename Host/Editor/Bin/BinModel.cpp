// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinModel.h"

#include "Host/Editor/Bin/MediaBin.h"
#include "Host/Editor/Model/MediaMime.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

BinModel::BinModel(MediaBin& bin, MediaDescriber& describer, ProxyJobs& proxies, QObject* parent)
    : QAbstractListModel(parent), m_bin(bin), m_describer(describer), m_proxies(proxies)
{
    connect(&m_bin, &MediaBin::Changed, this, &BinModel::TakeFiles);
    connect(&m_describer, &MediaDescriber::Described, this, &BinModel::TakeDescription);
    connect(&m_proxies, &ProxyJobs::Progressed, this, &BinModel::TakeProgress);
    connect(&m_proxies, &ProxyJobs::Ended, this, [this](const QString& file) {
        TakeProgress(file);
        m_describer.Describe(file); // which finds the proxy
    });
    TakeFiles();
}

int BinModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_items.size();
}

QVariant BinModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const BinItem& item = m_items[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return item.Name();
    case Qt::ToolTipRole:
    case SearchRole:
        return (QStringList{item.Name()} + item.Details()).join(QLatin1Char('\n'));
    case Qt::AccessibleDescriptionRole:
        return item.Summary();
    case ItemRole:
        return QVariant::fromValue(item);
    case PathRole:
        return item.entry.path;
    default:
        return {};
    }
}

Qt::ItemFlags BinModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                                 Qt::ItemNeverHasChildren
                           : Qt::ItemIsDropEnabled;
}

QStringList BinModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list"), QLatin1String(MediaMime::kRangeType)};
}

QMimeData* BinModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    QStringList files;
    for (const QModelIndex& index : indexes)
        files << m_items[index.row()].entry.path;
    return MediaMime::Make(files, m_items[indexes.first().row()].entry.marks);
}

bool BinModel::canDropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int /*row*/,
                               int /*column*/, const QModelIndex& /*parent*/) const
{
    return data && !MediaMime::Files(*data).isEmpty();
}

bool BinModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                            const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    Q_EMIT Dropped(MediaMime::Files(*data));
    return true;
}

int BinModel::RowOf(const QString& path) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [&](const BinItem& item) { return item.entry.path == path; });
    return found == m_items.end() ? -1 : int(found - m_items.begin());
}

BinItem BinModel::Item(const QString& path) const
{
    return m_items.value(RowOf(path));
}

void BinModel::Tell(int row)
{
    Q_EMIT dataChanged(index(row), index(row));
}

void BinModel::TakeFiles()
{
    const QStringList& files = m_bin.Files();
    const QSet<QString> wanted(files.begin(), files.end());
    for (int row = m_items.size() - 1; row >= 0; --row) {
        if (wanted.contains(m_items[row].entry.path))
            continue;
        beginRemoveRows({}, row, row);
        m_items.removeAt(row);
        endRemoveRows();
    }
    QHash<QString, int> rows;
    for (int row = 0; row < m_items.size(); ++row)
        rows.insert(m_items[row].entry.path, row);
    for (const QString& file : files) {
        int row = rows.value(file, -1);
        if (row < 0) {
            row = m_items.size();
            beginInsertRows({}, row, row);
            m_items.append(BinItem());
            m_items[row].entry.path = file;
            endInsertRows();
            m_describer.Describe(file);
        }
        m_items[row].entry = m_bin.Entry(file);
        m_items[row].uses = m_bin.Uses(file);
        m_items[row].proxyPercent = m_proxies.Percent(file);
    }
    if (!m_items.isEmpty())
        Q_EMIT dataChanged(index(0), index(m_items.size() - 1));
}

void BinModel::TakeDescription(const MediaDescription& description)
{
    const int row = RowOf(description.path);
    if (row < 0)
        return;
    const auto before = m_items[row].media.state;
    m_items[row].media = description;
    if (before != MediaDescription::State::Unknown && before != description.state)
        m_bin.Reload(description.path);
    Tell(row);
}

void BinModel::TakeProgress(const QString& file)
{
    const int row = RowOf(file);
    if (row < 0)
        return;
    m_items[row].proxyPercent = m_proxies.Percent(file);
    Tell(row);
}

void BinModel::LookAgain()
{
    for (const BinItem& item : qAsConst(m_items)) {
        const bool isThere = QFileInfo::exists(item.entry.path);
        if (isThere == item.IsOffline())
            m_describer.Describe(item.entry.path);
    }
}
