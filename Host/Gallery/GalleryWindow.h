// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QListWidget;
class QStackedWidget;

/// The list of pages at the left, the chosen page beside it.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    /// Shows the page of that name; false when there is none.
    bool ShowPage(const QString& name);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetTexts();
    void FitList();

    QListWidget* m_list;
    QStackedWidget* m_stack;
};
