// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyScope.h"

#include <QWidget>

class NumberEdit;
class QToolButton;

/// How fast a clip plays. A drag counts when it ends: the clip is another one then.
class SpeedSection : public QWidget
{
    Q_OBJECT

public:
    explicit SpeedSection(const PropertyScope& scope, QWidget* parent = nullptr);

    /// Shows what is there now.
    void Refresh();
    void FollowPlayHead() {}

private:
    void Apply(double percent);

    const PropertyScope m_scope;
    NumberEdit* m_speed;
    QToolButton* m_reset = nullptr;
};
