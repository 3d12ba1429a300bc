// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The first file of the name \a module in the module folders; where it would lie beside the
/// executable when there is none.
QString FindModule(const QString& module);

/// The first folder of the name \a name in the module folders, with a slash at its end; the one
/// beside the executable when there is none.
QString FindModuleFolder(const QString& name);

/// The files in the folder \a name of every module folder, unsorted within one. Of files of the
/// same name only the first found counts. The last folder's come first, as translators want them:
/// what is installed later is asked first.
QStringList FindModuleFiles(const QString& name);
