// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/FramePicture.h"

namespace {

constexpr int kBytesPerPixel = 4;

void ReleaseFrame(void* frame)
{
    static_cast<INLEVideoFrame*>(frame)->Release();
}

QRect ValidRect(INLEVideoFrame& frame, const NLESize& size)
{
    NLERect rect{};
    if (FAILED(frame.GetValidRect(&rect)))
        return {};
    return QRect(rect.x, rect.y, rect.width, rect.height) & QRect(0, 0, size.width, size.height);
}

} // namespace

QImage PictureOf(NLEComPtr<INLEVideoFrame> frame)
{
    NLESize size{};
    int memory = 0;
    std::uint8_t* pixels = nullptr;
    if (!frame || FAILED(frame->GetMemory(&memory)) || memory != NLEMemory_System ||
        FAILED(frame->GetSize(&size)) || FAILED(frame->GetData(&pixels)) || !pixels)
        return {};
    const QRect valid = ValidRect(*frame, size);
    if (valid.isEmpty())
        return {};
    const qint64 first = qint64(valid.y()) * size.width + valid.x();
    // Of the constant pixels the image never makes a copy of its own to draw them.
    const auto* start = static_cast<const uchar*>(pixels) + first * kBytesPerPixel;
    INLEVideoFrame* held = frame.detach();
    QImage picture(start, valid.width(), valid.height(), size.width * kBytesPerPixel,
                   QImage::Format_ARGB32, ReleaseFrame, held);
    if (picture.isNull()) // has not taken the frame over
        ReleaseFrame(held);
    return picture;
}
