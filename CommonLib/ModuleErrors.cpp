// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ModuleErrors.h"

#include "CommonLib/ModuleErrors_p.h"

#include <QFileInfo>
#include <QHash>
#include <QLibrary>
#include <QLoggingCategory>
#include <QMutex>

namespace {

Q_LOGGING_CATEGORY(lcModules, "commonlib.modules")

struct Errors
{
    QMutex mutex; ///< guards the rest
    QHash<QString, QString> texts;
};

Errors& AllErrors()
{
    static Errors s_errors;
    return s_errors;
}

/// Keeps \a text for \a module; false when it was there already.
bool Keep(const QString& module, const QString& text)
{
    Errors& errors = AllErrors();
    const QMutexLocker lock(&errors.mutex);
    QString& kept = errors.texts[module];
    if (kept == text)
        return false;
    kept = text;
    return true;
}

} // namespace

QString ModuleLoadError(const QString& module)
{
    Errors& errors = AllErrors();
    const QMutexLocker lock(&errors.mutex);
    return errors.texts.value(module);
}

void NoteModule(const QLibrary& module)
{
    const QString text = module.isLoaded() ? QString() : module.errorString();
    const QString name = QFileInfo(module.fileName()).fileName();
    if (Keep(name, text) && !text.isEmpty())
        qCWarning(lcModules, "%s is not loaded: %s", qUtf8Printable(name), qUtf8Printable(text));
}
