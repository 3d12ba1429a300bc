// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ChunkPlan.h"

#include "NLECore/render/EffectChain.h"
#include "NLECore/scene/FieldKeys.h"

#include <algorithm>
#include <limits>
#include <set>

namespace nle {

namespace {

/// Number of the way in which pictures are rendered and kept; another one makes all keys new.
constexpr int kRenderVersion = 3;
/// Quality, in thousandths, from which on colour keeps its full resolution.
constexpr int kFineQuality = 950;
constexpr int kBestQuality = 1000;

/// Stands before a transition, so that keys of composites without any are as they always were.
constexpr std::uint32_t kTransitionMark = 0x74726E73u;

/// What decides about the pictures of a transition at frames of its composite.
void AddLook(ContentHash& hash, const LayerTransition& transition, std::int64_t first,
             std::int64_t last)
{
    const ParameterValues& values = *transition.parameters;
    const std::int64_t toOwn = transition.range.in - transition.position;
    hash.Add(QString::fromLatin1(values.Declared().names.name));
    for (int index = 0; index < int(values.Declared().parameters.size()); ++index) {
        if (!ShowsInPicture(values.Row(index)))
            continue;
        const bool isAnimated = !values.Keys(index).empty();
        hash.Add(isAnimated).Add(isAnimated ? 0 : values.Number(index));
        for (std::int64_t frame = first; isAnimated && frame <= last; ++frame)
            hash.Add(values.NumberAtFrame(index, double(frame + toOwn)));
    }
}

bool IsOpaque(const Layer& root)
{
    return root.argb >> 24 == 0xFF && !MakeTransparent(root.effects);
}

std::int64_t FloorToGrid(std::int64_t frame, std::int64_t anchor)
{
    const std::int64_t rest = (frame - anchor) % ChunkPlan::kFrames;
    return frame - (rest < 0 ? rest + ChunkPlan::kFrames : rest);
}

} // namespace

ChunkPlan::ChunkPlan(Snapshot root, const CacheFormat& format)
    : m_root(std::move(root)), m_format(format)
{
    AddSpans(*m_root);
    const PictureCoding coding = Coding();
    ContentHash hash;
    hash.Add(kRenderVersion).Add(coding.format).Add(coding.quantizer);
    hash.Add(m_format.size.width()).Add(m_format.size.height());
    hash.Add(m_root->argb).Add(m_root->size.width).Add(m_root->size.height);
    hash.Add(m_root->frameRate.num).Add(m_root->frameRate.den);
    AddFields(hash, m_root->context);
    m_rootKey = hash.Result();
    LayerKeys layers;
    for (const Run& run : FindRuns(m_spans[m_root.get()]))
        AddChunks(run, layers);
}

PictureCoding ChunkPlan::Coding() const
{
    if (!IsOpaque(*m_root))
        return {PictureFormat::Exact, 0};
    const bool isFine = m_format.quality >= kFineQuality;
    const int quantizer =
        m_format.quality >= kBestQuality ? 1 : 2 + (1000 - m_format.quality) / 125;
    return {isFine ? PictureFormat::Fine : PictureFormat::Compact, quantizer};
}

void ChunkPlan::AddSpans(const Layer& composite)
{
    Spans spans;
    spans.reserve(composite.children.size());
    int order = 0;
    for (const Snapshot& child : composite.children) {
        ++order;
        if (!HasPicture(*child))
            continue;
        const std::int64_t begin = child->position;
        spans.push_back({begin, begin + NLERangeLength(child->range), 0, child.get(), order});
        if (child->kind == LayerKind::Composite)
            AddSpans(*child);
    }
    std::stable_sort(spans.begin(), spans.end(),
                     [](const Span& a, const Span& b) { return a.begin < b.begin; });
    std::int64_t furthest = std::numeric_limits<std::int64_t>::min();
    for (Span& span : spans)
        span.furthestEnd = furthest = std::max(furthest, span.end);
    m_spans.emplace(&composite, std::move(spans));
}

// Walks along the time line and keeps the spans that show, lowest first.
std::vector<ChunkPlan::Run> ChunkPlan::FindRuns(const Spans& spans)
{
    struct Lower
    {
        bool operator()(const Span* a, const Span* b) const { return a->order < b->order; }
    };
    std::vector<const Span*> byEnd;
    byEnd.reserve(spans.size());
    for (const Span& span : spans)
        byEnd.push_back(&span);
    std::sort(byEnd.begin(), byEnd.end(),
              [](const Span* a, const Span* b) { return a->end < b->end; });
    std::set<const Span*, Lower> showing;
    std::vector<Run> runs;
    auto starting = spans.begin();
    for (auto ending = byEnd.begin(); ending != byEnd.end();) {
        const bool starts = starting != spans.end() && starting->begin < (*ending)->end;
        const std::int64_t now = starts ? starting->begin : (*ending)->end;
        if (starts)
            showing.insert(&*starting++);
        else
            showing.erase(*ending++);
        const Span* base = showing.empty() ? nullptr : *showing.begin();
        if (!runs.empty() && runs.back().base == base)
            continue;
        if (!runs.empty()) {
            runs.back().end = now;
            if (runs.back().begin == now)
                runs.pop_back();
        }
        if (runs.empty() || runs.back().base != base)
            runs.push_back({now, now, base});
    }
    return runs;
}

void ChunkPlan::AddChunks(const Run& run, LayerKeys& layers)
{
    if (!run.base)
        return;
    const std::int64_t anchor = run.base->begin - run.base->layer->range.in;
    const std::int64_t end = std::min<std::int64_t>(run.end, kMostFrames);
    for (std::int64_t first = std::max<std::int64_t>(run.begin, 0); first < end;) {
        const std::int64_t next = std::min(FloorToGrid(first, anchor) + kFrames, end);
        Chunk chunk{int(first), int(next - 1), {}};
        chunk.key = KeyOf(chunk, layers);
        m_chunks.push_back(chunk);
        m_frameCount += chunk.Length();
        first = next;
    }
}

ContentKey ChunkPlan::KeyOf(const Chunk& chunk, LayerKeys& layers) const
{
    ContentHash hash;
    hash.Add(m_rootKey).Add(chunk.Length());
    for (const SharedParameters& effect : m_root->effects)
        layers.AddParameters(hash, *effect);
    LayerKeys::AddFrames(hash, *m_root, chunk.first, chunk.last);
    AddChildren(hash, *m_root, chunk.first, chunk.last, layers);
    return hash.Result();
}

void ChunkPlan::AddChildren(ContentHash& hash, const Layer& composite, std::int64_t first,
                            std::int64_t last, LayerKeys& layers) const
{
    const Spans& spans = m_spans.at(&composite);
    std::vector<const Span*> showing;
    auto span = std::upper_bound(spans.begin(), spans.end(), last,
                                 [](std::int64_t at, const Span& one) { return at < one.begin; });
    while (span != spans.begin() && (--span)->furthestEnd > first) {
        if (span->end > first)
            showing.push_back(&*span);
    }
    std::sort(showing.begin(), showing.end(),
              [](const Span* a, const Span* b) { return a->order < b->order; });
    hash.Add(showing.size());
    for (const Span* shown : showing) {
        const Layer& layer = *shown->layer;
        const std::int64_t begin = std::max(shown->begin, first);
        const std::int64_t end = std::min(shown->end - 1, last);
        const std::int64_t toContent = layer.range.in - shown->begin;
        hash.Add(layers.Of(layer)).Add(begin - first).Add(end - first);
        if (LayerKeys::CountsFrames(layer))
            hash.Add(begin + toContent);
        LayerKeys::AddFrames(hash, layer, begin + toContent, end + toContent);
        if (layer.kind == LayerKind::Composite)
            AddChildren(hash, layer, begin + toContent, end + toContent, layers);
    }
    AddTransitions(hash, composite, showing, first, last);
}

void ChunkPlan::AddTransitions(ContentHash& hash, const Layer& composite,
                               const std::vector<const Span*>& showing, std::int64_t first,
                               std::int64_t last)
{
    const auto placeOf = [&showing](int child) {
        const auto found = std::find_if(showing.begin(), showing.end(), [child](const Span* span) {
            return span->order == child + 1;
        });
        return child >= 0 && found != showing.end() ? int(found - showing.begin()) : -1;
    };
    for (auto next = FirstFrom(composite.transitions, first);
         next != composite.transitions.end() && next->position <= last; ++next) {
        const LayerTransition& transition = *next;
        const LayerTransition::Clips& clips = transition.pictures;
        const int from = placeOf(clips.from);
        const int to = placeOf(clips.to);
        if (transition.End() <= first || (from < 0 && to < 0))
            continue;
        // A clip that takes part counts where it does not show as well.
        hash.Add(kTransitionMark).Add(from).Add(to).Add(clips.from >= 0).Add(clips.to >= 0);
        hash.Add(transition.position - first).Add(NLERangeLength(transition.range));
        AddLook(hash, transition, std::max(transition.position, first),
                std::min(transition.End() - 1, last));
    }
}

const Chunk* ChunkPlan::At(std::int64_t frame) const
{
    const auto chunk =
        std::lower_bound(m_chunks.begin(), m_chunks.end(), frame,
                         [](const Chunk& one, std::int64_t at) { return one.last < at; });
    return chunk != m_chunks.end() && chunk->first <= frame ? &*chunk : nullptr;
}

KeySet ChunkPlan::Keys() const
{
    KeySet keys(m_chunks.size());
    for (const Chunk& chunk : m_chunks)
        keys.insert(chunk.key);
    return keys;
}

std::optional<ContentKey> ChunkPlan::Owner() const
{
    if (m_root->guid.isEmpty())
        return {};
    return ContentHash().Add(m_root->guid).Result();
}

ContentKey ChunkPlan::CurrentKey(const Chunk& chunk) const
{
    LayerKeys now;
    return KeyOf(chunk, now);
}

} // namespace nle
