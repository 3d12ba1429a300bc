// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/GraphicsCard.h"
#include "Host/Widgets/PictureSurface.h"

GraphicsCard FindGraphicsCard()
{
    return GraphicsCard::None;
}

QWidget* MakeGlSurface(std::function<PictureScene()>, QWidget*)
{
    return nullptr;
}
