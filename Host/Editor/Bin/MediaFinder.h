// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QStringList>

/// Files of the names of \a files somewhere in or below \a folder: new paths by old ones. Of
/// several of one name the one most of whose folders have the old names.
QHash<QString, QString> FindMediaIn(const QString& folder, const QStringList& files);

/// Finds files that were moved together.
///
/// \a found is where the file \a lost is now. Of the files \a others gives those that stand in the
/// same relative place to it as they did, or else are found in its folder as FindMediaIn() does.
/// The result holds \a lost itself as well.
QHash<QString, QString> FindMovedMedia(const QString& lost, const QString& found,
                                       const QStringList& others);
