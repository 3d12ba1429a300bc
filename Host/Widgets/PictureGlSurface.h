// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Widgets/PicturePainter.h"

#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLWidget>

#include <functional>
#include <memory>

/// Draws scenes by OpenGL over all of a widget.
///
/// A QOpenGLWidget and no QOpenGLWindow: it is no native window of its own, so that it scrolls,
/// stacks and is grabbed with the widgets around it, and those above it show through. The price is
/// one more pass of the graphics card over the window.
class PictureGlSurface : public QOpenGLWidget, private QOpenGLFunctions
{
public:
    using MakeScene = std::function<PictureScene()>;

    /// \a scene is asked on each drawing.
    PictureGlSurface(MakeScene scene, QWidget* parent);
    ~PictureGlSurface() override;

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void ReleaseGl();
    void Upload(const QImage& picture);
    void DrawPicture(const PictureScene& scene);
    /// \a height of the view in device pixels, which OpenGL counts from below.
    void Fill(const QRect& area, const QColor& color, int height);

    MakeScene m_scene;
    PicturePainter m_painter; ///< draws in place of a program that does not compile here

    std::unique_ptr<QOpenGLShaderProgram> m_program;
    GLuint m_texture = 0;
    int m_largestTexture = 0; ///< side in pixels
    QSize m_textureSize;
    qint64 m_textureKey = 0; ///< of the picture in the texture
};
