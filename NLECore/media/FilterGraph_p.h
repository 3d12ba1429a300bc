// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaFile_p.h"

#include <QByteArray>

#include <memory>

struct AVFilterContext;
struct AVFilterGraph;

namespace nle {

/// Filters of libavfilter between a place where frames go in and one where they come out.
class FilterGraph
{
public:
    /// Interleaved sound as numbers of 32 bits, through \a filters.
    bool BuildSound(const QByteArray& filters, int sampleRate, int channels);
    /// Pictures that \a options of libavfilter's "buffer" describe; \a threads of 0 are as many as
    /// the library thinks fit.
    bool BuildPictures(const QByteArray& options, const QByteArray& filters, int threads);
    void Clear();
    explicit operator bool() const { return m_output != nullptr; }

    /// Takes what is in the frame; null ends what goes in.
    bool Add(AVFrame* frame);
    /// The next frame that comes out; false when there is none yet. What \a frame held is given up.
    bool Take(AVFrame& frame);
    /// Changes an option of all filters of that name.
    void Change(const QByteArray& filter, const QByteArray& option, const QByteArray& value);

private:
    struct Deleter
    {
        void operator()(AVFilterGraph* graph) const;
    };

    bool Build(const QByteArray& kind, const QByteArray& between, int threads);

    std::unique_ptr<AVFilterGraph, Deleter> m_graph;
    AVFilterContext* m_input = nullptr;
    AVFilterContext* m_output = nullptr;
};

/// How libavfilter names the usual order of \a channels.
QByteArray ChannelLayoutName(int channels);
/// Room for \a count samples a channel of such sound in an empty \a frame; false without memory.
bool AllocateSound(AVFrame& frame, int sampleRate, int channels, int count);

} // namespace nle
