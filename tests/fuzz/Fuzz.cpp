// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Fuzz.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

void Ignore(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

QTemporaryDir& Own()
{
    static QTemporaryDir s_folder;
    return s_folder;
}

} // namespace

void fuzz::Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

QString fuzz::Folder()
{
    return Own().path();
}

QString fuzz::Write(const char* name, const QByteArray& content)
{
    QFile file(Own().filePath(QLatin1String(name)));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    Require(isWritten, "room for the input");
    return file.fileName();
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Ignore);
    // Never destroyed: what Qt itself keeps to the end may have gone before.
    [[maybe_unused]] static auto* const application = new QGuiApplication(*argc, *argv);
    return 0;
}
