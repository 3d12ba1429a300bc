// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/MediaEncoder.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/objects/TimelineFactory.h"
#include "NLECore/render/FilmWriter.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/SourceChoice.h"

namespace nle {

namespace {

/// Outside of these nothing is written: a frame's sound must fit into memory.
constexpr double kLowestRate = 0.1; // frames a second
constexpr int kHighestSampleRate = 384000;
constexpr int kMostChannels = 64;

int OrDefault(int value, int preset)
{
    return value > 0 ? value : preset;
}

bool HasSound(const Layer& layer)
{
    if (layer.media && layer.media->audioStream >= 0)
        return true;
    return std::any_of(layer.children.begin(), layer.children.end(),
                       [](const Snapshot& child) { return HasSound(*child); });
}

/// Codecs that halve the colour planes need even sides; empty for what has no picture.
QSize EvenSize(NLESize size)
{
    if (size.width < 1 || size.height < 1)
        return {};
    return QSize(std::max(size.width & ~1, 2), std::max(size.height & ~1, 2));
}

/// A file is written at its full size, however small the preview is, and drawn as deep as it holds.
/// Where it keeps what is transparent, nothing shows where no clip does.
Snapshot ForFile(const Snapshot& root, const EncodeOptions& settled, bool withProxies)
{
    auto copy = std::make_shared<Layer>(withProxies ? *root : *WithoutProxies(root));
    copy->context.previewScale = 1;
    copy->context.bitDepth = settled.bitDepth > kUsualDepth ? kDeepDepth : kUsualDepth;
    if (settled.alpha != 0 && copy->kind == LayerKind::Composite)
        copy->argb = 0;
    return copy;
}

} // namespace

HRESULT MediaEncoder::Open(INLETimeline* timeline, const wchar_t* path,
                           const NLEEncodeSettings* settings)
{
    return ComGuard([&] {
        m_root.reset();
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node || !path)
            return Refuse(E_INVALIDARG, path ? NLEReason_WrongObject : NLEReason_NullPointer);
        const Snapshot root = node->MakeSnapshot();
        m_path = FromWide(path);
        if (!TakeSettings(*node, *root, settings ? *settings : NLEEncodeSettings{}))
            return Refuse(E_INVALIDARG, NLEReason_NothingThere, m_path);
        WriterError error;
        if (!TryDeep(root->context) && !MediaWriter::Try(m_path, m_settings, &error))
            return RefuseOpening(m_path, error, E_INVALIDARG);
        m_root = ForFile(root, m_settings.settled, m_options.proxies != 0);
        return S_OK;
    });
}

bool MediaEncoder::TryDeep(const RenderContext& context)
{
    const bool isHostsChoice =
        m_options.bitDepth != 0 || !m_options.pixelFormat.empty() || !m_options.profile.empty();
    if (!IsDeep(context) || isHostsChoice)
        return false;
    WriterSettings deep = m_settings;
    deep.options.bitDepth = kDeepDepth;
    WriterError error;
    if (!MediaWriter::Try(m_path, deep, &error))
        return false;
    m_settings = deep;
    return true;
}

bool MediaEncoder::TakeSettings(const TimelineNode& node, const Layer& root,
                                const NLEEncodeSettings& wanted)
{
    // A clip is encoded as it is trimmed, a composite as long as it has clips.
    const NLERange whole =
        root.kind == LayerKind::Composite ? NLERange{0, node.TotalLength() - 1} : root.range;
    const bool wantsAll =
        wanted.range.in == 0 && wanted.range.out == 0 && m_options.firstFrame == 0;
    m_range = NLERangeLength(wanted.range) > 0 && !wantsAll ? wanted.range : whole;
    const bool hasSize = wanted.frameSize.width > 1 && wanted.frameSize.height > 1;
    m_settings.size = EvenSize(hasSize ? wanted.frameSize : root.size);
    m_frameRate = IsRate(wanted.frameRate) ? wanted.frameRate : node.FrameRate();
    m_settings.frameRate = m_frameRate;
    m_settings.quality = OrDefault(wanted.quality, OrDefault(m_options.quality, 20));
    const auto* project = dynamic_cast<const ProjectNode*>(&node);
    const tagNLEProjectProfile& profile = project ? project->Profile() : kDefaultProfile;
    m_settings.sampleRate = OrDefault(wanted.sampleRate, profile.sampleRate);
    m_settings.channels = OrDefault(wanted.channels, profile.channels);
    m_settings.audioBitRate =
        OrDefault(wanted.audioBitRate, OrDefault(m_options.audioBitRate, 192000));
    m_settings.hasSound = HasSound(root);
    m_settings.options = m_options;
    const bool isCountable = ToDouble(m_frameRate) >= kLowestRate && ToDouble(node.FrameRate()) > 0;
    const bool isAudible =
        m_settings.sampleRate <= kHighestSampleRate && m_settings.channels <= kMostChannels;
    return NLERangeLength(m_range) > 0 && isCountable && isAudible;
}

HRESULT MediaEncoder::Encode(NLEProgressCallback callback, void* userData)
{
    const NLEComPtr<MediaEncoder> self(this); // the callback may give up the last reference
    return ComGuard([&] {
        if (!m_root)
            return Refuse(E_FAIL, NLEReason_WrongState);
        WriterError error;
        const std::unique_ptr<MediaWriter> writer = MediaWriter::Open(m_path, m_settings, &error);
        if (!writer)
            return RefuseWriting(E_FAIL, m_path, error);
        const FilmPlan film = {m_root, m_range, m_frameRate};
        const HRESULT result = WriteFilm(film, *writer, [&](int percent) {
            return !callback || callback(percent, userData) == 0;
        });
        if (result == E_OUTOFMEMORY || result == S_FALSE)
            return result;
        if (FAILED(result) || !writer->Finish()) {
            return RefuseWriting(E_FAIL, m_path, writer->Error());
        }
        if (callback)
            callback(100, userData);
        return S_OK;
    });
}

HRESULT MediaEncoder::SetOptions(INLEProperties* options)
{
    return ComGuard([&] {
        if (options)
            return ReadOptions(options, &m_options);
        m_options = {};
        return S_OK;
    });
}

HRESULT MediaEncoder::GetOptions(INLEProperties* options)
{
    return ComGuard([&] {
        if (!options)
            return Refuse(E_POINTER);
        return m_root ? WriteOptions(m_settings.settled, options)
                      : Refuse(E_FAIL, NLEReason_WrongState);
    });
}

} // namespace nle
