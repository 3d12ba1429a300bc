// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyScope.h"

#include <QWidget>

class NumberEdit;
class QComboBox;

/// Kind and length of a transition. A change of one puts another transition in its place, with the
/// same parameters unless its kind is another.
class TransitionForm : public QWidget
{
    Q_OBJECT

public:
    explicit TransitionForm(const PropertyScope& scope, QWidget* parent = nullptr);

    /// Shows what is there now.
    void Refresh();
    void FollowPlayHead() {}

private:
    int Frames() const;
    void Apply(const QString& kind, int frames);

    const PropertyScope m_scope;
    QComboBox* m_kind;
    NumberEdit* m_length; ///< in seconds
};
