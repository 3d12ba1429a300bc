// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QLabel;

/// The buttons and labels in all their states, with a line that tells what they signal.
class ButtonPage : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonPage(QWidget* parent = nullptr);

private:
    QWidget* MakeButtons();
    QWidget* MakeStates();
    QWidget* MakeImagesAndTexts();
    QWidget* MakeTabs();
    QWidget* MakeLabels();
    void Tell(const QString& text);

    QLabel* m_told;
};
