// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>

/// The import page as a window of its own, which stays open for more than one import. Its title is
/// its owner's.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImportDialog(QWidget* parent = nullptr);

Q_SIGNALS:
    /// As the signal of the same name of ImportPage.
    void Imported(const QStringList& paths);
};
