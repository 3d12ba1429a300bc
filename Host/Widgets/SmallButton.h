// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QString;
class QToolButton;
class QWidget;

/// A button of one sign beside what it acts on, owned by \a parent. \a name is its tool tip; tools
/// for people with disabilities read \a owner before it where that is given.
QToolButton* MakeSmallButton(const QString& sign, const QString& name, const QString& owner,
                             QWidget* parent);
/// Gives a button another name.
void NameSmallButton(QToolButton& button, const QString& name, const QString& owner);
