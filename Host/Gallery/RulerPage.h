// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class TimelineRuler;

/// The timeline ruler with a clip strip below it that scrolls and zooms along.
class RulerPage : public QWidget
{
public:
    explicit RulerPage(QWidget* parent = nullptr);

    /// Owned by the page.
    TimelineRuler* Ruler() const { return m_ruler; }

private:
    TimelineRuler* m_ruler;
};
