// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>

/// Writes a translation file for the context "Test" through Qt's compiler: the source "text N"
/// becomes \a prefix + "N" for every N below \a count. The folder is made. A compressed file leaves
/// the sources out and has a table of contexts.
inline bool WriteTranslations(const QString& path, const QString& prefix, int count,
                              bool compress = false)
{
    QString text = QStringLiteral("<!DOCTYPE TS><TS version='2.1'><context><name>Test</name>");
    for (int i = 0; i < count; ++i) {
        text += QStringLiteral("<message><source>text %1</source>"
                               "<translation>%2%1</translation></message>")
                    .arg(QString::number(i), prefix);
    }
    text += QStringLiteral("<message><source>none</source><translation></translation></message>"
                           "</context></TS>");
    QDir().mkpath(QFileInfo(path).path());
    const QString source = path + QStringLiteral(".ts");
    QFile file(source);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        return false;
    file.close();
    const int code =
        QProcess::execute(QStringLiteral(LRELEASE),
                          {"-silent", compress ? "-compress" : "-nocompress", source, "-qm", path});
    return file.remove() && code == 0;
}
