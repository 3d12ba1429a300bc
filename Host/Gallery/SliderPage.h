// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QGridLayout;

/// The sliders in all their states, each beside its live value.
class SliderPage : public QWidget
{
    Q_OBJECT

public:
    explicit SliderPage(QWidget* parent = nullptr);

private:
    void AddSeekBars(QGridLayout& grid);
    void AddZoomBars(QGridLayout& grid);
    void AddBars(QGridLayout& grid);
    QWidget* MakeUprightBars();
};
