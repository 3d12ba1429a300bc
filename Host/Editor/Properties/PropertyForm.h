// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyField.h"
#include "Host/Editor/Properties/PropertyScope.h"

#include <QVector>
#include <QWidget>

class KeyFrameBar;
class PropertyEditor;
class QGridLayout;
class QToolButton;

/// Rows of fields: a name, an editor, a key frame, a way back to the preset, and, below what has
/// some, the key frames. Each change
/// goes to the project's steps; one drag is one step.
class PropertyForm : public QWidget
{
    Q_OBJECT

public:
    PropertyForm(const PropertyScope& scope, const QVector<PropertyField>& fields,
                 QWidget* parent = nullptr);

    /// Shows what is there now.
    void Refresh();
    /// Shows what is at the play head, which is elsewhere now.
    void FollowPlayHead();

private:
    struct Row
    {
        PropertyField field;
        PropertyEditor* editor;
        QToolButton* reset;
        KeyFrameBar* keys; ///< null for what cannot have key frames
        int merge;         ///< number of the drag that is going on, else 0
    };

    void AddRow(const PropertyField& field);
    KeyFrameBar* AddKeys(int index, QGridLayout& grid, int line);
    QToolButton* AddReset(int index);
    void Connect(int index);
    void Set(int index, const QVariant& value);
    void Make(int index, const PropertyChange& change);
    void Reset(int index);
    void Show(const Row& row) const;

    const PropertyScope m_scope;
    QVector<Row> m_rows;
};
