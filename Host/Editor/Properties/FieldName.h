// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLabel>

/// Pixels of the column that names of fields stand in, and between it and the fields.
constexpr int kFieldNameWidth = 104;
constexpr int kFieldGap = 6;

/// The name that stands before \a editor, a child of \a parent.
inline QLabel* MakeFieldName(const QString& title, QWidget* editor, QWidget* parent)
{
    auto* name = new QLabel(title, parent);
    name->setWordWrap(true);
    name->setFixedWidth(kFieldNameWidth);
    name->setBuddy(editor);
    return name;
}
