// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QRgb>
#include <QString>

#include <optional>

/// Questions to the operating system.

/// Whether this is Windows 8 or later; true on every other system.
bool IsWindows8OrLater();

/// The desktop's accent colour with its alpha; nothing when the system names none.
std::optional<QRgb> DesktopAccentColor();

/// All free bytes of the volume that holds the existing \a path, not only those within the user's
/// quota; nothing when the system gives no answer.
std::optional<quint64> FreeBytes(const QString& path);
