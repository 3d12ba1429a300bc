// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/GraphicsCard.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

/// How Mesa, Windows and SwiftShader name what does without a card.
constexpr const char* kSoftware[] = {"llvmpipe",    "softpipe", "swrast",      "software",
                                     "swiftshader", "gdi",      "basic render"};

GraphicsCard KindOf(const char* renderer)
{
    const QByteArray name = QByteArray(renderer).toLower();
    for (const char* software : kSoftware) {
        if (name.contains(software))
            return GraphicsCard::Software;
    }
    return GraphicsCard::Hardware;
}

GraphicsCard Probe()
{
    if (QCoreApplication::testAttribute(Qt::AA_ForceRasterWidgets))
        return GraphicsCard::None;
    QOpenGLContext context;
    if (!context.create())
        return GraphicsCard::None;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    // Widgets are composed in frame buffers, which came with version 2.
    if (!context.makeCurrent(&surface) ||
        !context.functions()->hasOpenGLFeature(QOpenGLFunctions::Framebuffers))
        return GraphicsCard::None;
    const GLubyte* renderer = context.functions()->glGetString(GL_RENDERER);
    const GraphicsCard card = KindOf(reinterpret_cast<const char*>(renderer));
    context.doneCurrent();
    return card;
}

} // namespace

GraphicsCard FindGraphicsCard()
{
    static const GraphicsCard card = Probe();
    return card;
}
