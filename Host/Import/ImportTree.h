// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Import/ImportSession.h"

#include <QTimer>
#include <QTreeWidget>

#include <unordered_map>
#include <unordered_set>

/// The content of a device as a tree with check marks: a folder's mark stands for its files.
class ImportTree : public QTreeWidget
{
    Q_OBJECT

public:
    /// A file whose mark is set.
    struct File
    {
        std::wstring id;
        QString name;
        quint64 size; ///< bytes
    };

    explicit ImportTree(QWidget* parent = nullptr);

    /// Removes everything.
    void Clear();
    /// Adds objects below their parents, which come before them.
    void AddObjects(const QVector<ImportObject>& objects);
    void SetThumbnail(const std::wstring& objectId, const QImage& image);
    /// The marked files, in the order of the device.
    QVector<File> MarkedFiles() const;
    /// Marks those objects of \a ids that are there.
    void Mark(const QVector<std::wstring>& ids);
    void UnmarkAll();
    /// Number of files.
    int FileCount() const;

Q_SIGNALS:
    /// The marks or the files have changed; once for many changes at a time.
    void MarksChanged();
    /// Files have come into view that have had no picture yet.
    void ThumbnailsWanted(const QVector<ImportPicture>& files);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QTreeWidgetItem* MakeItem(const ImportObject& object) const;
    /// Writes size and date as the language does.
    void SetFacts(QTreeWidgetItem& item) const;
    void WantThumbnails();
    bool IsFile(const QTreeWidgetItem& item) const;

    template <typename Use>
    void ForEachFile(Use use) const;

    std::unordered_map<std::wstring, QTreeWidgetItem*> m_items; ///< owned by the tree
    std::unordered_set<std::wstring> m_asked; ///< whose pictures have been asked for
    // A style makes them from files each time that it is asked.
    const QIcon m_fileIcon;
    const QIcon m_folderIcon;
    const QIcon m_storageIcon;
    QTimer m_marksTimer;
    QTimer m_viewTimer;
};
