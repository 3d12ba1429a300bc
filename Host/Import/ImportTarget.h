// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSet>
#include <QString>

/// A name that a file may have on every system, made from what a device calls it: no path, no
/// reserved characters, not empty.
QString CleanFileName(const QString& name);

/// A path in \a folder for a file called \a name that neither exists nor is among the \a taken
/// ones, to which it is added; a number in brackets tells later ones apart.
QString FreePath(const QString& folder, const QString& name, QSet<QString>& taken);
