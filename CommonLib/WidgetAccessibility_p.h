// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QFocusEvent;
class QWidget;

// The accessible interfaces themselves need no call.

/// Whether a widget that \a shows the keyboard's focus, or does not, shows it after \a event: from
/// when the keyboard brings it until it goes elsewhere within the window.
bool ShowsKeyboardFocus(const QFocusEvent& event, bool shows);

/// Tells assistive tools, if there are any, that \a widget has the value \a value now.
void NotifyAccessibleValue(QWidget* widget, double value);
