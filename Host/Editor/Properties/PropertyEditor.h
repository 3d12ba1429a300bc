// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyField.h"

#include <QWidget>

/// Shows one value and lets the user change it, as its field says.
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    /// The editor for the kind of \a field.
    static PropertyEditor* Make(const PropertyField& field, QWidget* parent);

    /// Shows \a value and emits nothing. What the user holds is left alone.
    virtual void Show(const QVariant& value) = 0;

Q_SIGNALS:
    /// Around changes that are one to the user: a drag, a dialog, a text being typed.
    void Began();
    void Changed(const QVariant& value);
    void Ended();

protected:
    using QWidget::QWidget;
    /// Makes \a widget all that there is to see, called \a title.
    void Fill(QWidget* widget, const QString& title);
};
