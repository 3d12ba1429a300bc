// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEncode.h"
#include "NLECore/media/MediaFile_p.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <vector>

struct SwsContext;

namespace nle {

/// Turns pictures into frames as an encoder takes them. One object serves one thread at a time.
class PictureFeeder
{
public:
    /// What the encoder takes.
    struct Target
    {
        QSize size;
        AVPixelFormat format = AV_PIX_FMT_YUV420P;
        AVColorSpace colours = AVCOL_SPC_BT709;
        AVColorTransferCharacteristic transfer = AVCOL_TRC_BT709;
        AVColorPrimaries primaries = AVCOL_PRI_BT709;
        bool isFullRange = false;
        NLEFieldOrder fields = NLEField_Progressive;
    };

    explicit PictureFeeder(const Target& target);
    ~PictureFeeder();
    PictureFeeder(const PictureFeeder&) = delete;
    PictureFeeder& operator=(const PictureFeeder&) = delete;

    /// Whether a decoded picture can become a frame without losing what it shows: it is of
    /// brightness and the same colour differences, has no alpha, and means the same light. Any
    /// thread may ask.
    bool Takes(const AVFrame& decoded) const;
    /// \a decoded itself where size, format, colours and range fit, else converted. Valid until the
    /// next call; null on failure.
    AVFrame* Feed(const AVFrame& decoded);
    /// \a picture has the target's size. Valid until the next call; null on failure.
    AVFrame* Feed(const QImage& picture);

private:
    struct ScalerFreer
    {
        void operator()(SwsContext* scaler) const;
    };
    using Scaler = std::unique_ptr<SwsContext, ScalerFreer>;

    /// What decoded pictures are converted from.
    struct Conversion
    {
        QSize size;
        AVPixelFormat format = AV_PIX_FMT_NONE;
        bool isFullRange = false;

        friend bool operator==(const Conversion& a, const Conversion& b)
        {
            return a.size == b.size && a.format == b.format && a.isFullRange == b.isFullRange;
        }
    };

    bool Fits(const AVFrame& decoded) const;
    AVFrame* Share(const AVFrame& decoded);
    AVFrame* Convert(const AVFrame& decoded);
    /// A frame that no encoder holds any more.
    AVFrame* FreeFrame();
    void Mark(AVFrame* frame) const;
    bool PrepareDecodedScaler(const AVFrame& decoded);
    bool PrepareImageScaler(AVPixelFormat source, int height);
    bool HasFields() const { return m_target.fields != NLEField_Progressive; }

    const Target m_target;
    std::vector<FramePtr> m_frames;
    FramePtr m_shared{av_frame_alloc()};
    FramePtr m_source{av_frame_alloc()}; ///< converted last; what it became is m_converted
    FramePtr m_converted{av_frame_alloc()};
    Scaler m_imageScaler;
    Scaler m_decodedScaler;
    Conversion m_conversion; ///< that of m_decodedScaler
};

} // namespace nle
