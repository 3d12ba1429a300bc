// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// The system's folder-choice dialog, owned by the window of the native handle \a owner (0 for
/// none). Empty when the user cancels.
QString ChooseFolder(const QString& title, quint64 owner);
