// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

/// Lets buttons, lists and fields that have the focus keep the keys that they live by, although
/// they move the play head elsewhere: Space, Home and End. For the application.
class FocusedKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
