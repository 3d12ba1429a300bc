// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QPushButton;

/// A part of the panel under a title that folds it away.
class PropertySection : public QWidget
{
    Q_OBJECT

public:
    PropertySection(const QString& title, QWidget* content, QWidget* parent = nullptr);

private:
    void Fold(bool isOpen);

    QPushButton* m_title;
    QWidget* m_content;
};
