// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyScope.h"

#include <QWidget>

class KeyFrameBar;
class MovementKeys;
class PropertyForm;

/// The key frames of a clip's picture and what they hold.
class MovementSection : public QWidget
{
    Q_OBJECT

public:
    explicit MovementSection(const PropertyScope& scope, QWidget* parent = nullptr);

    /// Shows what is there now.
    void Refresh();
    void FollowPlayHead() { Refresh(); }

private:
    const PropertyScope m_scope;
    KeyFrameBar* m_bar;
    PropertyForm* m_form;
};
