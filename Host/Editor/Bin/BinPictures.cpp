// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinPictures.h"

#include "Com/ThreadPriority.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"

#include <QPainter>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int kRoomForPictures = 64 << 10; // kB
constexpr std::size_t kMostWaiting = 100;
const QColor kWave(0x4d, 0xa3, 0xff);

QImage ImageOf(INLEPicture& picture)
{
    int width = 0;
    int height = 0;
    const std::uint8_t* pixels = nullptr;
    if (FAILED(picture.GetWidth(&width)) || FAILED(picture.GetHeight(&height)) ||
        FAILED(picture.GetData(&pixels)) || !pixels)
        return {};
    return QImage(pixels, width, height, QImage::Format_ARGB32).copy();
}

QSize FittedInto(const QSize& room, double shape)
{
    const QSizeF fitted = QSizeF(shape > 0 ? shape : 1, 1).scaled(room, Qt::KeepAspectRatio);
    return QSize(std::max(1, qRound(fitted.width())), std::max(1, qRound(fitted.height())));
}

QImage ReadFrame(const MediaDescription& media, int frame, const QSize& room)
{
    const auto extractor = EngineProvider().CreateThumbnailExtractor();
    const std::uint32_t stream = media.report->FirstStream(NLEStream_Video);
    if (!extractor || FAILED(extractor->SetSource(media.info.get(), stream)))
        return {};
    const QSize size = FittedInto(room, media.report->PictureShape());
    NLEComPtr<INLEPicture> picture;
    if (FAILED(extractor->Extract(frame, {size.width(), size.height()}, picture.put())) || !picture)
        return {};
    const QImage image = ImageOf(*picture);
    return image.size() == size
               ? image
               : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage PaintWave(const std::vector<float>& minima, const std::vector<float>& maxima,
                 const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(kWave);
    const double middle = size.height() / 2.0;
    const double scale = middle * 0.9;
    for (int x = 0; x < size.width(); ++x)
        painter.drawLine(QPointF(x + 0.5, middle - scale * double(maxima[std::size_t(x)])),
                         QPointF(x + 0.5, middle - scale * double(minima[std::size_t(x)])));
    return image;
}

QImage ReadWave(const MediaDescription& media, const QSize& room)
{
    const auto extractor = EngineProvider().CreateWaveExtractor();
    const std::uint32_t stream = media.report->FirstStream(NLEStream_Audio);
    if (!extractor || FAILED(extractor->SetSource(media.info.get(), stream)))
        return {};
    std::vector<float> minima(std::size_t(room.width()));
    std::vector<float> maxima(minima.size());
    if (FAILED(extractor->Extract(0, media.report->Seconds(), room.width(), minima.data(),
                                  maxima.data())))
        return {};
    return PaintWave(minima, maxima, room);
}

} // namespace

BinPictures::BinPictures(QObject* parent) : QObject(parent), m_made(kRoomForPictures)
{
    EngineProvider(); // is made on this thread
    m_threads.setMaxThreadCount(1);
}

BinPictures::~BinPictures()
{
    m_threads.clear();
    m_threads.waitForDone();
}

QString BinPictures::KeyOf(const QString& path, int frame)
{
    return QString::number(frame) + QLatin1Char(' ') + path;
}

void BinPictures::SetRoom(const QSize& room)
{
    if (std::exchange(m_room, room) == room)
        return;
    m_made.clear();
    m_asked.clear();
}

QImage BinPictures::Picture(const MediaDescription& media, int frame, bool isPassing)
{
    if (media.state != MediaDescription::State::Ready || m_room.isEmpty())
        return {};
    const int shown = media.report->video && !media.report->image ? frame : 0;
    const QString key = KeyOf(media.path, shown);
    if (const QImage* made = m_made.object(key))
        return *made;
    if (!m_asked.contains(key)) {
        m_asked.insert(key);
        Want({media, shown, m_room, isPassing});
    }
    return {};
}

void BinPictures::Want(Wanted wanted)
{
    const QMutexLocker lock(&m_waiting.mutex);
    auto& waiting = m_waiting.pictures;
    const auto forget = [this](const Wanted& other) {
        m_asked.remove(KeyOf(other.media.path, other.frame));
    };
    if (wanted.isPassing) {
        const auto passed = std::stable_partition(
            waiting.begin(), waiting.end(), [](const Wanted& other) { return !other.isPassing; });
        std::for_each(passed, waiting.end(), forget);
        waiting.erase(passed, waiting.end());
    }
    waiting.push_back(std::move(wanted));
    if (waiting.size() > kMostWaiting) {
        forget(waiting.front());
        waiting.pop_front();
    }
    m_threads.start([this] {
        LowerThreadPriority();
        MakeNext();
    });
}

void BinPictures::MakeNext()
{
    Wanted wanted;
    {
        const QMutexLocker lock(&m_waiting.mutex);
        if (m_waiting.pictures.empty())
            return; // it was dropped
        wanted = std::move(m_waiting.pictures.back());
        m_waiting.pictures.pop_back();
    }
    const QImage picture = wanted.media.report->video
                               ? ReadFrame(wanted.media, wanted.frame, wanted.room)
                               : ReadWave(wanted.media, wanted.room);
    QMetaObject::invokeMethod(this, [this, wanted, picture] { Take(wanted, picture); });
}

void BinPictures::Take(const Wanted& wanted, const QImage& picture)
{
    if (wanted.room != m_room)
        return;
    const QString key = KeyOf(wanted.media.path, wanted.frame);
    m_asked.remove(key);
    m_made.insert(key, new QImage(picture), 1 + int(picture.sizeInBytes() >> 10));
    Q_EMIT Made(wanted.media.path);
}
