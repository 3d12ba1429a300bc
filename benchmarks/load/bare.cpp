// SPDX-License-Identifier: LGPL-2.1-or-later
#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return 0;
}
