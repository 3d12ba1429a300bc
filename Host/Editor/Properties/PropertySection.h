// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

#include <functional>

class QPushButton;

/// A part of the panel under a title that folds it away. What is in it is made when it is first
/// open.
class PropertySection : public QWidget
{
    Q_OBJECT

public:
    /// Makes the content, as a child of the widget that is given.
    using Make = std::function<QWidget*(QWidget*)>;

    PropertySection(const QString& title, Make make, bool isOpen, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user folds it away, or opens it.
    void Folded(bool isOpen);

private:
    void Fold(bool isOpen);

    QPushButton* m_title;
    Make m_make;
    QWidget* m_content = nullptr;
};
