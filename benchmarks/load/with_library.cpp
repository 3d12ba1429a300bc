// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseLog.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const bool taken = GetGlobalLogInstance() != nullptr;
    ReleseGlobalLogInstance();
    return taken ? 0 : 1;
}
