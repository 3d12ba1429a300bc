// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/XmlOperation.h"
#include "CommonLib/xml/XmlDocument_p.h"

#include <QDir>
#include <QStandardPaths>

QString GetConfigfileDir()
{
    QString root = qEnvironmentVariable("ProgramData");
    if (root.isEmpty())
        root = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QString folder = root + "/Corvane Video Editor/Resources/MotionKit";
    if (!FileOperation::IsFileExist(folder))
        QDir().mkpath(folder);
    return folder;
}

QString GetSettingFilePath()
{
    return GetConfigfileDir() + "/Settings.xml";
}

void CreateSettingsFile(const QString& path)
{
    FileOperation::CreateNewFile(path);
    XmlOperation::SaveXmlContent2File(NewXmlDocument("Settings"), path);
}
