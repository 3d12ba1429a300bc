// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"
#include "Host/Editor/Properties/PropertyScope.h"

#include <QWidget>

class QPushButton;

/// Puts a transition on the beginning or the end of a clip.
class TransitionSection : public QWidget
{
    Q_OBJECT

public:
    explicit TransitionSection(const PropertyScope& scope, QWidget* parent = nullptr);

private:
    QPushButton* MakeButton(const QString& text, NLEClipEdge edge);

    const PropertyScope m_scope;
};
