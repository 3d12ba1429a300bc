// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QIcon>

/// The picture of a widget in the list of widgets; null for a class that has none.
QIcon WidgetIcon(const QString& className);
