// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/BaseLog.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

/// Opens the global log in a folder of its own. The log ends with Take() or with this object.
class LogCapture
{
public:
    LogCapture() { GetGlobalLogInstance()->Init(Path().toLocal8Bit().constData(), false, 0); }
    ~LogCapture() { ReleseGlobalLogInstance(); }

    /// Ends the log and gives its lines, without time stamps and line ends.
    QStringList Take()
    {
        ReleseGlobalLogInstance();
        QFile file(Path());
        if (!file.open(QIODevice::ReadOnly))
            return {"no log file"};
        QStringList lines =
            QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
        static const QRegularExpression stamp(QStringLiteral("^\\[[^]]*\\]"));
        return lines.replaceInStrings(stamp, QString());
    }

private:
    QString Path() const { return m_folder.filePath(QStringLiteral("log.txt")); }

    QTemporaryDir m_folder;
};
