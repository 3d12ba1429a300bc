// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FilterGraph_p.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/channel_layout.h>
}

namespace nle {

void FilterGraph::Deleter::operator()(AVFilterGraph* graph) const
{
    avfilter_graph_free(&graph);
}

bool FilterGraph::BuildSound(const QByteArray& filters, int sampleRate, int channels)
{
    const QByteArray rate = QByteArray::number(sampleRate);
    return Build("abuffer",
                 "time_base=1/" + rate + ":sample_rate=" + rate +
                     ":sample_fmt=flt:channel_layout=" + ChannelLayoutName(channels) + "," +
                     filters,
                 0);
}

bool FilterGraph::BuildPictures(const QByteArray& options, const QByteArray& filters, int threads)
{
    return Build("buffer", options + "," + filters, threads);
}

bool FilterGraph::Build(const QByteArray& kind, const QByteArray& between, int threads)
{
    Clear();
    const QByteArray input = kind + "@in";
    const QByteArray output = kind + "sink@out";
    const QByteArray whole = input + "=" + between + "," + output;
    m_graph.reset(avfilter_graph_alloc());
    if (!m_graph)
        return false;
    m_graph->nb_threads = threads;
    AVFilterInOut* inputs = nullptr;
    AVFilterInOut* outputs = nullptr;
    const bool isBuilt =
        avfilter_graph_parse2(m_graph.get(), whole.constData(), &inputs, &outputs) >= 0 &&
        avfilter_graph_config(m_graph.get(), nullptr) >= 0;
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    if (isBuilt) {
        m_input = avfilter_graph_get_filter(m_graph.get(), input.constData());
        m_output = avfilter_graph_get_filter(m_graph.get(), output.constData());
    }
    if (!m_input || !m_output)
        Clear();
    return m_output != nullptr;
}

void FilterGraph::Clear()
{
    m_graph.reset();
    m_input = nullptr;
    m_output = nullptr;
}

bool FilterGraph::Add(AVFrame* frame)
{
    return m_input && av_buffersrc_add_frame(m_input, frame) >= 0;
}

bool FilterGraph::Take(AVFrame& frame)
{
    av_frame_unref(&frame);
    return m_output && av_buffersink_get_frame(m_output, &frame) >= 0;
}

void FilterGraph::Change(const QByteArray& filter, const QByteArray& option,
                         const QByteArray& value)
{
    avfilter_graph_send_command(m_graph.get(), filter.constData(), option.constData(),
                                value.constData(), nullptr, 0, 0);
}

QByteArray ChannelLayoutName(int channels)
{
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    char name[64] = {};
    av_channel_layout_describe(&layout, name, sizeof(name));
    return name;
}

bool AllocateSound(AVFrame& frame, int sampleRate, int channels, int count)
{
    frame.format = AV_SAMPLE_FMT_FLT;
    frame.sample_rate = sampleRate;
    frame.nb_samples = count;
    av_channel_layout_default(&frame.ch_layout, channels);
    return av_frame_get_buffer(&frame, 0) >= 0;
}

} // namespace nle
