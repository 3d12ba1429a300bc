// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

#include <functional>

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
    void Tell(std::function<QString()> text);

    std::function<QString()> m_tell; ///< what was told last, in the language of the moment
    QLabel* m_told;
};
