// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/Composer.h"

#include "NLECore/model/FrameMath.h"
#include "NLECore/render/Decoders.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Longest side of a picture that is asked of a decoder; a larger one is drawn enlarged.
constexpr int kLongestSide = 8192;
/// Height of a line of text, as a share of the picture's height.
constexpr double kTextHeight = 1.0 / 12;

QSizeF Scaled(NLESize size, double scale)
{
    return QSizeF(size.width * scale, size.height * scale);
}

QImage ColorPicture(std::uint32_t argb, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromRgba(argb));
    return image;
}

QImage TextPicture(const Layer& layer, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    // Fonts belong to the GUI application; without one there is nothing to draw with.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return image;
    QFont font(layer.family);
    font.setPixelSize(std::max(1, int(size.height() * kTextHeight)));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, layer.text);
    return image;
}

/// Without alpha the painter can copy instead of blending.
QImage AsOpaque(QImage image)
{
    image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

} // namespace

QRect PlacePicture(NLESize size, tagNLEMarginMode margin, NLESize parentSize, const QSize& canvas)
{
    if (size.width < 1 || size.height < 1 || parentSize.width < 1 || parentSize.height < 1)
        return {};
    const double fitWidth = double(canvas.width()) / size.width;
    const double fitHeight = double(canvas.height()) / size.height;
    QSizeF placed;
    switch (margin) {
    case NLEMargin_Fit:
        placed = Scaled(size, std::min(fitWidth, fitHeight));
        break;
    case NLEMargin_Fill:
        placed = Scaled(size, std::max(fitWidth, fitHeight));
        break;
    case NLEMargin_Stretch:
        placed = canvas;
        break;
    case NLEMargin_None:
        placed = QSizeF(double(size.width) * canvas.width() / parentSize.width,
                        double(size.height) * canvas.height() / parentSize.height);
        break;
    }
    const QSize whole(std::max(1, qRound(placed.width())), std::max(1, qRound(placed.height())));
    return QRect(
        QPoint((canvas.width() - whole.width()) / 2, (canvas.height() - whole.height()) / 2),
        whole);
}

Composer::Composer(Snapshot root) : m_root(std::move(root)) {}

QImage Composer::Render(std::int64_t frame, const QSize& frameSize, QRect* place)
{
    *place = PlacePicture(m_root->size, NLEMargin_Fit, m_root->size, frameSize);
    if (place->isEmpty())
        return {};
    QImage image = Content(*m_root, frame, place->size());
    DropIdleDecoders();
    return image;
}

QImage Composer::Content(const Layer& layer, std::int64_t frame, const QSize& size)
{
    switch (layer.kind) {
    case LayerKind::Media:
        return MediaPicture(layer, frame, size);
    case LayerKind::Color:
        return ColorPicture(layer.argb, size);
    case LayerKind::Text:
        return TextPicture(layer, size);
    case LayerKind::Composite:
        return Composite(layer, frame, size);
    }
    return {};
}

QImage Composer::MediaPicture(const Layer& layer, std::int64_t frame, const QSize& size)
{
    const MediaInfo& media = *layer.media;
    const MediaStream* stream = media.Stream(media.videoStream);
    if (!stream)
        return {};
    const NLERational mediaRate = {media.frameRate.num, media.frameRate.den};
    const int wanted = ShownFrame(frame, layer.frameRate, mediaRate);
    OpenDecoder& decoder = m_decoders[&layer];
    decoder.used = true;
    if (!decoder.lease)
        decoder.lease =
            Decoders().Acquire(layer.media, media.videoStream, DecodePurpose::Render, wanted);
    if (!decoder.lease)
        return {};
    const QImage image = decoder.lease->Picture(wanted, size);
    return stream->hasAlpha || image.isNull() ? image : AsOpaque(image);
}

QImage Composer::Composite(const Layer& layer, std::int64_t frame, const QSize& size)
{
    QImage canvas = ColorPicture(layer.argb, size);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const Snapshot& child : layer.children) {
        if (!child->PlaysAt(frame) || child->mode == NLERender_AudioOnly)
            continue;
        const QRect place = PlacePicture(child->size, child->margin, layer.size, size);
        if (place.isEmpty())
            continue;
        const QImage picture = Content(*child, frame - child->position + child->range.in,
                                       place.size().boundedTo({kLongestSide, kLongestSide}));
        if (picture.size() == place.size())
            painter.drawImage(place.topLeft(), picture);
        else if (!picture.isNull())
            painter.drawImage(place, picture);
    }
    return canvas;
}

void Composer::DropIdleDecoders()
{
    for (auto decoder = m_decoders.begin(); decoder != m_decoders.end();) {
        if (std::exchange(decoder->second.used, false))
            ++decoder;
        else
            decoder = m_decoders.erase(decoder);
    }
}

} // namespace nle
