// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QFocusEvent;
class QWidget;

/// Makes the accessible interfaces of the library's widgets known to the toolkit. Called by the
/// constructor of each of them, as the toolkit forgets them together with its application object.
/// Not part of the library's interface.
void InstallWidgetAccessibility();

/// Whether a widget that \a shows the keyboard's focus, or does not, shows it after \a event: from
/// when the keyboard brings it until it goes elsewhere within the window.
bool ShowsKeyboardFocus(const QFocusEvent& event, bool shows);

/// Tells assistive tools, if there are any, that \a slider has the value \a value now.
void NotifyAccessibleValue(QWidget* slider, double value);
