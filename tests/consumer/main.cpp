// SPDX-License-Identifier: LGPL-2.1-or-later
#include <CommonLib/CommonLib.h>

#include <QCoreApplication>
#include <QFile>

/// Writes a line into the log named by the first argument and finds it there again.
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    QFile::remove(QFile::decodeName(argv[1]));
    if (GetGlobalLogInstance()->Init(argv[1], false, 0) != 0)
        return 3;
    GetGlobalLogInstance()->LogInfo("main.cpp", "main", 1, "hello from %s", "outside");
    ReleseGlobalLogInstance();

    QFile log(QFile::decodeName(argv[1]));
    if (!log.open(QIODevice::ReadOnly))
        return 4;
    return log.readAll().endsWith("-INFO- [main]:  hello from outside - [main.cpp(1)]\r\n") ? 0 : 5;
}
