// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyEditor.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

/// A text of several lines. What is typed until the focus leaves is one change.
class TextEditor : public PropertyEditor
{
    Q_OBJECT

public:
    TextEditor(const PropertyField& field, QWidget* parent);
    void Show(const QVariant& value) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPlainTextEdit* m_text;
};

/// A family of fonts; the empty one is the system's.
class FontEditor : public PropertyEditor
{
    Q_OBJECT

public:
    FontEditor(const PropertyField& field, QWidget* parent);
    void Show(const QVariant& value) override;

private:
    QComboBox* m_box;
};

/// A path that is typed or picked. An empty one is none.
class FileEditor : public PropertyEditor
{
    Q_OBJECT

public:
    FileEditor(const PropertyField& field, QWidget* parent);
    void Show(const QVariant& value) override;

private:
    void Pick();
    void Take();

    QLineEdit* m_line;
    QString m_shown;
};
