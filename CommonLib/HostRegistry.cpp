// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

namespace {

QWidget* s_mainWindow = nullptr;
QWidget* s_matterView = nullptr;
QWidget* s_playerView = nullptr;
bool s_isRightToLeft = false;

} // namespace

void gSetMainWindow(void* /*ignored*/, QWidget* widget)
{
    s_mainWindow = widget;
}

QWidget* gGetMainWindow()
{
    return s_mainWindow;
}

void gSetMatterView(void* /*ignored*/, QWidget* widget)
{
    s_matterView = widget;
}

QWidget* gGetMatterView()
{
    return s_matterView;
}

void gSetPlayerView(void* /*ignored*/, QWidget* widget)
{
    s_playerView = widget;
}

QWidget* gGetPlayerView()
{
    return s_playerView;
}

void gSetArgLang(bool rightToLeft)
{
    s_isRightToLeft = rightToLeft;
}

bool gIsArgLang()
{
    return s_isRightToLeft;
}
