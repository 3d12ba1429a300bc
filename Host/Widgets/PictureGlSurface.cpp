// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PictureGlSurface.h"

#include "Host/Widgets/PictureSurface.h"

#include <QOpenGLContext>
#include <QPainter>
#include <QVector2D>
#include <QVector4D>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// As the formats and functions below name it; missing from the headers of OpenGL ES 2.
constexpr GLenum kUnpackRowLength = 0x0CF2;
constexpr int kMostTaps = 8;

constexpr const char* kVertexShader = R"(
attribute highp vec2 corner;
void main() { gl_Position = vec4(corner, 0.0, 1.0); }
)";

// Colours are weighed by their alpha before they are mixed, which no texture filter does: else what
// is transparent would bleed into the edges. A picture that shrinks is averaged over as many places
// in each direction as it has pixels for one of the screen.
constexpr const char* kFragmentShader = R"(
#ifdef GL_ES
precision highp float;
#endif
uniform sampler2D picture;
uniform vec2 size;     // of the picture
uniform vec4 target;   // left and upper edge from the lower left corner, width, height
uniform float taps;
uniform float checker; // side of a square; 0 for none
uniform vec3 light;
uniform vec3 dark;     // the background without a checkerboard

vec4 texel(vec2 at)
{
    // The bytes are blue, green, red, alpha.
    vec4 color = texture2D(picture, clamp(at, vec2(0.5), size - 0.5) / size).bgra;
    return vec4(color.rgb * color.a, color.a);
}

vec4 smoothed(vec2 at)
{
    vec2 first = floor(at - 0.5) + 0.5;
    vec2 part = at - first;
    vec4 upper = mix(texel(first), texel(first + vec2(1.0, 0.0)), part.x);
    vec4 lower = mix(texel(first + vec2(0.0, 1.0)), texel(first + vec2(1.0, 1.0)), part.x);
    return mix(upper, lower, part.y);
}

void main()
{
    vec2 device = vec2(gl_FragCoord.x - target.x, target.y - gl_FragCoord.y);
    vec2 pixels = size / target.zw;
    vec4 sum = vec4(0.0);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            vec2 place = vec2(float(x), float(y));
            if (max(place.x, place.y) < taps)
                sum += smoothed((device + (place + 0.5) / taps - 0.5) * pixels);
        }
    }
    sum /= taps * taps;
    vec3 under = dark;
    if (checker > 0.0) {
        vec2 square = floor(device / checker);
        under = mod(square.x + square.y, 2.0) < 0.5 ? light : dark;
    }
    gl_FragColor = vec4(sum.rgb + under * (1.0 - sum.a), 1.0);
}
)";

QVector3D ColorVector(const QColor& color)
{
    return {float(color.redF()), float(color.greenF()), float(color.blueF())};
}

std::unique_ptr<QOpenGLShaderProgram> MakeProgram()
{
    auto program = std::make_unique<QOpenGLShaderProgram>();
    if (!program->addShaderFromSourceCode(QOpenGLShader::Vertex, kVertexShader) ||
        !program->addShaderFromSourceCode(QOpenGLShader::Fragment, kFragmentShader))
        return nullptr;
    program->bindAttributeLocation("corner", 0);
    return program->link() ? std::move(program) : nullptr;
}

} // namespace

QWidget* MakeGlSurface(std::function<PictureScene()> scene, QWidget* parent)
{
    return new PictureGlSurface(std::move(scene), parent);
}

PictureGlSurface::PictureGlSurface(MakeScene scene, QWidget* parent)
    : QOpenGLWidget(parent), m_scene(std::move(scene))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

PictureGlSurface::~PictureGlSurface()
{
    ReleaseGl();
    // The base class ends the context when this is no longer an object of this class.
    if (context())
        disconnect(context(), nullptr, this, nullptr);
}

void PictureGlSurface::ReleaseGl()
{
    if (!m_program && m_texture == 0)
        return;
    makeCurrent();
    m_program.reset();
    glDeleteTextures(1, &m_texture);
    m_texture = 0;
    m_textureSize = {};
    doneCurrent();
}

void PictureGlSurface::initializeGL()
{
    // Another window brings another context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &PictureGlSurface::ReleaseGl,
            Qt::UniqueConnection);
    initializeOpenGLFunctions();
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &m_largestTexture);
    m_program = MakeProgram();
    glGenTextures(1, &m_texture);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER})
        glTexParameteri(GL_TEXTURE_2D, filter, GL_NEAREST);
    for (const GLenum wrap : {GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T})
        glTexParameteri(GL_TEXTURE_2D, wrap, GL_CLAMP_TO_EDGE);
}

void PictureGlSurface::Upload(const QImage& picture)
{
    glBindTexture(GL_TEXTURE_2D, m_texture);
    if (m_textureKey == picture.cacheKey() && m_textureSize == picture.size())
        return;
    m_textureKey = picture.cacheKey();
    const int rowLength = picture.bytesPerLine() / 4;
    const bool hasGaps = rowLength != picture.width();
    const bool canSkip = !context()->isOpenGLES() || context()->format().majorVersion() >= 3;
    const QImage whole = hasGaps && !canSkip ? picture.copy() : picture;
    if (hasGaps && canSkip)
        glPixelStorei(kUnpackRowLength, rowLength);
    if (std::exchange(m_textureSize, picture.size()) != picture.size())
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, whole.width(), whole.height(), 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, whole.constBits());
    else
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, whole.width(), whole.height(), GL_RGBA,
                        GL_UNSIGNED_BYTE, whole.constBits());
    if (hasGaps && canSkip)
        glPixelStorei(kUnpackRowLength, 0);
}

void PictureGlSurface::DrawPicture(const PictureScene& scene)
{
    const int height = scene.placement.ViewSize().height();
    const QRect target = scene.placement.Target();
    const QRect visible = scene.placement.Visible();
    const double taps =
        std::clamp(std::floor(1 / scene.placement.Factor()), 1.0, double(kMostTaps));
    m_program->bind();
    m_program->setUniformValue("picture", 0);
    m_program->setUniformValue("size", QVector2D(scene.picture.width(), scene.picture.height()));
    m_program->setUniformValue(
        "target", QVector4D(target.x(), height - target.y(), target.width(), target.height()));
    m_program->setUniformValue("taps", float(taps));
    m_program->setUniformValue("checker", float(scene.checkerboard ? CheckerSide(scene) : 0));
    m_program->setUniformValue("light", ColorVector(QColor(kCheckerLight)));
    m_program->setUniformValue(
        "dark", ColorVector(scene.checkerboard ? QColor(kCheckerDark) : scene.background));
    constexpr GLfloat corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
    m_program->enableAttributeArray(0);
    m_program->setAttributeArray(0, corners, 2);
    glScissor(visible.x(), height - visible.y() - visible.height(), visible.width(),
              visible.height());
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    m_program->disableAttributeArray(0);
    m_program->release();
}

void PictureGlSurface::Fill(const QRect& area, const QColor& color, int height)
{
    glScissor(area.x(), height - area.y() - area.height(), area.width(), area.height());
    glClearColor(float(color.redF()), float(color.greenF()), float(color.blueF()), 1);
    glClear(GL_COLOR_BUFFER_BIT);
}

void PictureGlSurface::paintGL()
{
    const PictureScene scene = m_scene();
    const QSize size = scene.picture.size();
    if (!m_program || std::max(size.width(), size.height()) > m_largestTexture) {
        QPainter painter(this);
        m_painter.Draw(painter, scene);
        return;
    }
    const QRect view(QPoint(), scene.placement.ViewSize());
    glEnable(GL_SCISSOR_TEST);
    Fill(view, scene.background, view.height());
    if (!scene.placement.IsEmpty()) {
        Upload(scene.picture);
        DrawPicture(scene);
    }
    for (const ColoredRect& line : SafeAreaLines(scene))
        Fill(line.area, line.color, view.height());
    glDisable(GL_SCISSOR_TEST);
}
