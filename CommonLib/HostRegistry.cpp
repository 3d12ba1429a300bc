// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

namespace {

QWidget* mainWindow = nullptr;
QWidget* matterView = nullptr;
QWidget* playerView = nullptr;
bool isRightToLeft = false;

} // namespace

void gSetMainWindow(void* /*ignored*/, QWidget* widget)
{
    mainWindow = widget;
}

QWidget* gGetMainWindow()
{
    return mainWindow;
}

void gSetMatterView(void* /*ignored*/, QWidget* widget)
{
    matterView = widget;
}

QWidget* gGetMatterView()
{
    return matterView;
}

void gSetPlayerView(void* /*ignored*/, QWidget* widget)
{
    playerView = widget;
}

QWidget* gGetPlayerView()
{
    return playerView;
}

void gSetArgLang(bool rightToLeft)
{
    isRightToLeft = rightToLeft;
}

bool gIsArgLang()
{
    return isRightToLeft;
}
