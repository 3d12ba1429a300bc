// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/QtMessages.h"

#include "CommonLib/BaseLog.h"

#include <QString>

namespace {

void LogMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    BaseLog* log = GetGlobalLogInstance();
    const QByteArray text = message.toUtf8();
    const char* category = context.category ? context.category : "default";
    const char* file = context.file ? context.file : "";
    switch (type) {
    case QtDebugMsg:
        return log->LogDebug(file, category, context.line, "%s", text.constData());
    case QtInfoMsg:
        return log->LogInfo(file, category, context.line, "%s", text.constData());
    case QtWarningMsg:
        return log->LogWarn(file, category, context.line, "%s", text.constData());
    case QtCriticalMsg:
    case QtFatalMsg:
        return log->LogError(file, category, context.line, "%s", text.constData());
    }
}

} // namespace

QtMessages::QtMessages() : m_previous(qInstallMessageHandler(LogMessage)) {}

QtMessages::~QtMessages()
{
    qInstallMessageHandler(m_previous);
}
