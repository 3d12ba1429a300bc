// SPDX-License-Identifier: LGPL-2.1-or-later
// Not part of the interface.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

/// While the mouse holds a widget: notices when its release goes elsewhere, to a menu that was
/// opened by a key, or to nobody behind a dialog.
class HoldWatch : public QObject
{
    Q_OBJECT

public:
    /// \a lost is called once, in a later turn of the event loop, unless \a held goes or End()
    /// comes before.
    static void Begin(QWidget& held, std::function<void()> lost);
    static void End(const QWidget& held);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    HoldWatch(QWidget& held, std::function<void()> lost);

    const std::function<void()> m_lost;
};
