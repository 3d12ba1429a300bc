// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseWidget.h"

#include <QEvent>

BaseWidget::BaseWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

void BaseWidget::RetranslateUi() {}

void BaseWidget::TranslateText() {}

HWND BaseWidget::getHwnd()
{
    return reinterpret_cast<HWND>(winId());
}

bool BaseWidget::event(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        TranslateText();
        RetranslateUi();
    }
    return QWidget::event(event);
}
