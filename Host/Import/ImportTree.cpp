// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportTree.h"

#include "Com/WideText.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QImageReader>
#include <QLocale>
#include <QScrollBar>
#include <QStyle>
#include <QTreeWidgetItemIterator>

#include <cwchar>

namespace {

constexpr QSize kIcon(48, 32);
constexpr int kNameWidth = 360;
constexpr int kSizeWidth = 130;
constexpr int kViewDelay = 80; // ms

enum Column
{
    NameColumn,
    SizeColumn,
    DateColumn
};
enum Role
{
    IdRole = Qt::UserRole,
    SizeRole,
    FolderRole,
    DateRole
};

std::wstring IdOf(const QTreeWidgetItem& item)
{
    return item.data(NameColumn, IdRole).value<std::wstring>();
}

/// A picture that is quickly read, even over a slow connection.
bool IsSmallPicture(const QTreeWidgetItem& item)
{
    constexpr qulonglong most = 16ULL * 1024 * 1024;
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const QFileInfo file(item.text(NameColumn));
    return item.data(NameColumn, SizeRole).toULongLong() <= most &&
           formats.contains(file.suffix().toLower().toLatin1());
}

/// Storages open unfolded, and where cameras and phones keep their pictures.
bool StartsUnfolded(const QTreeWidgetItem& item)
{
    const QString cameraFolder = QStringLiteral("DCIM");
    const QTreeWidgetItem* const parent = item.parent();
    return !parent || item.text(NameColumn) == cameraFolder ||
           parent->text(NameColumn) == cameraFolder;
}

} // namespace

ImportTree::ImportTree(QWidget* parent)
    : QTreeWidget(parent)
    , m_fileIcon(style()->standardIcon(QStyle::SP_FileIcon))
    , m_folderIcon(style()->standardIcon(QStyle::SP_DirIcon))
    , m_storageIcon(style()->standardIcon(QStyle::SP_DriveHDIcon))
{
    KeepTranslated(this, [this] {
        setHeaderLabels({tr("Name"), tr("Size"), tr("Modified")});
        setAccessibleName(tr("Content of the device"));
        for (const auto& [id, item] : m_items)
            SetFacts(*item);
    });
    setIconSize(kIcon);
    setUniformRowHeights(true);
    setAlternatingRowColors(false);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    header()->resizeSection(NameColumn, kNameWidth);
    header()->resizeSection(SizeColumn, kSizeWidth);

    m_marksTimer.setSingleShot(true);
    m_marksTimer.setInterval(0);
    connect(&m_marksTimer, &QTimer::timeout, this, &ImportTree::MarksChanged);
    connect(this, &QTreeWidget::itemChanged, &m_marksTimer, qOverload<>(&QTimer::start));
    m_viewTimer.setSingleShot(true);
    m_viewTimer.setInterval(kViewDelay);
    connect(&m_viewTimer, &QTimer::timeout, this, &ImportTree::WantThumbnails);
    const auto look = qOverload<>(&QTimer::start);
    connect(this, &QTreeWidget::itemExpanded, &m_viewTimer, look);
    connect(this, &QTreeWidget::itemCollapsed, &m_viewTimer, look);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, &m_viewTimer, look);
}

void ImportTree::Clear()
{
    clear();
    m_items.clear();
    m_asked.clear();
    m_marksTimer.start();
}

void ImportTree::AddObjects(const QVector<ImportObject>& objects)
{
    // A folder's mark is counted together from all its children each time that it is asked.
    std::unordered_map<QTreeWidgetItem*, bool> marked;
    for (const ImportObject& object : objects) {
        if (object.parent.empty() || m_items.count(object.id))
            continue; // the device itself is what the page shows above
        QTreeWidgetItem* const item = MakeItem(object);
        const auto parent = m_items.find(object.parent);
        if (parent == m_items.end()) {
            addTopLevelItem(item);
        } else {
            // A mark that is there already holds for what comes below it.
            QTreeWidgetItem* const folder = parent->second;
            auto isMarked = marked.find(folder);
            if (isMarked == marked.end())
                isMarked =
                    marked.emplace(folder, folder->checkState(NameColumn) == Qt::Checked).first;
            if (isMarked->second)
                item->setCheckState(NameColumn, Qt::Checked);
            folder->addChild(item);
            if (!folder->data(NameColumn, FolderRole).toBool())
                folder->setIcon(NameColumn, m_storageIcon);
        }
        item->setExpanded(StartsUnfolded(*item));
        m_items.emplace(object.id, item);
    }
    m_marksTimer.start();
    if (!m_viewTimer.isActive())
        m_viewTimer.start(); // or a steady flow of objects would put the pictures off to its end
}

QTreeWidgetItem* ImportTree::MakeItem(const ImportObject& object) const
{
    auto* item = new QTreeWidgetItem;
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setCheckState(NameColumn, Qt::Unchecked);
    item->setText(NameColumn, object.name.isEmpty() ? FromWide(object.id) : object.name);
    item->setIcon(NameColumn, object.isFolder ? m_folderIcon : m_fileIcon);
    item->setData(NameColumn, IdRole, QVariant::fromValue(object.id));
    item->setData(NameColumn, SizeRole, object.size);
    item->setData(NameColumn, FolderRole, object.isFolder);
    item->setData(NameColumn, DateRole, object.modified);
    item->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    SetFacts(*item);
    return item;
}

void ImportTree::SetFacts(QTreeWidgetItem& item) const
{
    const qint64 size = item.data(NameColumn, SizeRole).toLongLong();
    if (size > 0)
        item.setText(SizeColumn, locale().formattedDataSize(size, 1));
    const QDateTime modified = item.data(NameColumn, DateRole).toDateTime();
    if (modified.isValid())
        item.setText(DateColumn, locale().toString(modified, QLocale::ShortFormat));
}

void ImportTree::SetThumbnail(const std::wstring& objectId, const QImage& image)
{
    const auto found = m_items.find(objectId);
    if (found != m_items.end())
        found->second->setIcon(NameColumn, QIcon(QPixmap::fromImage(image)));
}

bool ImportTree::IsFile(const QTreeWidgetItem& item) const
{
    // A storage is no folder; an empty one at the top has neither children nor size.
    return !item.data(NameColumn, FolderRole).toBool() && item.childCount() == 0 &&
           (item.parent() || item.data(NameColumn, SizeRole).toULongLong() > 0);
}

template <typename Use>
void ImportTree::ForEachFile(Use use) const
{
    for (QTreeWidgetItemIterator it(const_cast<ImportTree*>(this)); *it; ++it) {
        if (IsFile(**it))
            use(**it);
    }
}

QVector<ImportTree::File> ImportTree::MarkedFiles() const
{
    QVector<File> files;
    ForEachFile([&](const QTreeWidgetItem& item) {
        if (item.checkState(NameColumn) == Qt::Checked)
            files.append(
                {IdOf(item), item.text(NameColumn), item.data(NameColumn, SizeRole).toULongLong()});
    });
    return files;
}

void ImportTree::Mark(const QVector<std::wstring>& ids)
{
    for (const std::wstring& id : ids) {
        const auto found = m_items.find(id);
        if (found != m_items.end())
            found->second->setCheckState(NameColumn, Qt::Checked);
    }
}

void ImportTree::UnmarkAll()
{
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setCheckState(NameColumn, Qt::Unchecked);
}

int ImportTree::FileCount() const
{
    int count = 0;
    ForEachFile([&](const QTreeWidgetItem&) { ++count; });
    return count;
}

void ImportTree::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    m_viewTimer.start();
}

void ImportTree::WantThumbnails()
{
    QVector<ImportPicture> files;
    const int bottom = viewport()->height();
    for (QTreeWidgetItem* item = itemAt(0, 0); item && visualItemRect(item).top() < bottom;
         item = itemBelow(item)) {
        if (IsFile(*item) && m_asked.insert(IdOf(*item)).second)
            files.append({IdOf(*item), IsSmallPicture(*item)});
    }
    if (!files.isEmpty())
        Q_EMIT ThumbnailsWanted(files);
}
