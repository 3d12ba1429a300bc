// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/KeepTranslated.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace {

/// Child of the widget that it watches.
class Retranslator : public QObject
{
public:
    Retranslator(QWidget* widget, std::function<void()> setTexts)
        : QObject(widget), m_setTexts(std::move(setTexts))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_setTexts();
        return QObject::eventFilter(watched, event);
    }

private:
    const std::function<void()> m_setTexts;
};

} // namespace

void KeepTranslated(QWidget* widget, std::function<void()> setTexts)
{
    setTexts();
    new Retranslator(widget, std::move(setTexts));
}
