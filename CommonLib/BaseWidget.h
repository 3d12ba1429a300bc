// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "CommonLib/CommonLibExport.h"

#include <QWidget>

/// Widget with a styled background that is told when the language changes.
class COMMONLIB_EXPORT BaseWidget : public QWidget
{
    Q_OBJECT

public:
    explicit BaseWidget(QWidget* parent); ///< a plain widget

    /// Called on a change of the language, after TranslateText(), to make room for the new texts.
    /// Does nothing here.
    virtual void RetranslateUi();
    /// Called on a change of the language to set the texts anew. Does nothing here.
    virtual void TranslateText();
    /// Handle of the native window, which is created when there is none yet. Belongs to the widget.
    virtual HWND getHwnd();

protected:
    bool event(QEvent* event) override;
};
