// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/FilmWriter.h"

#include "Com/ComGuard.h"
#include "Com/ThreadPriority.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/render/AudioMixer.h"
#include "NLECore/render/Composer.h"
#include "NLECore/render/TaskThread.h"
#include "NLECore/scene/FrameMath.h"

#include <QPainter>

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <optional>

namespace nle {

namespace {

/// Frames that wait to be encoded, at the most: as many as even out what single ones cost, and
/// fewer where they are large.
constexpr int kMostWaiting = 4;
constexpr std::int64_t kMostWaitingBytes = std::int64_t(128) << 20;

/// A frame of the film: what was decoded or what was drawn, and its sound, interleaved.
struct FilmFrame
{
    FramePtr decoded;
    QImage picture;
    std::vector<float> sound;
};

/// Hands frames from the thread that makes them to the one that encodes them.
class FrameQueue
{
public:
    explicit FrameQueue(int capacity) : m_capacity(std::size_t(capacity)) {}

    /// Waits for room; false when nobody takes any more.
    bool Put(FilmFrame frame)
    {
        std::unique_lock<std::mutex> lock(m_guarded.mutex);
        m_changed.wait(
            lock, [this] { return m_guarded.isClosed || m_guarded.frames.size() < m_capacity; });
        if (m_guarded.isClosed)
            return false;
        m_guarded.frames.push_back(std::move(frame));
        lock.unlock();
        m_changed.notify_all();
        return true;
    }

    /// Waits for a frame; none when no more come.
    std::optional<FilmFrame> Take()
    {
        std::unique_lock<std::mutex> lock(m_guarded.mutex);
        m_changed.wait(lock, [this] { return m_guarded.isClosed || !m_guarded.frames.empty(); });
        if (m_guarded.frames.empty())
            return {};
        std::optional<FilmFrame> frame(std::move(m_guarded.frames.front()));
        m_guarded.frames.pop_front();
        lock.unlock();
        m_changed.notify_all();
        return frame;
    }

    /// Ends it from either side; the frames that wait can still be taken.
    void Close()
    {
        {
            const std::lock_guard<std::mutex> lock(m_guarded.mutex);
            m_guarded.isClosed = true;
        }
        m_changed.notify_all();
    }

private:
    const std::size_t m_capacity;
    std::condition_variable m_changed;
    struct
    {
        std::mutex mutex; ///< guards the rest
        std::deque<FilmFrame> frames;
        bool isClosed = false;
    } m_guarded;
};

/// Makes the frames of a film, one after the other.
class FrameMaker
{
public:
    FrameMaker(const FilmPlan& plan, const MediaWriter& writer)
        : m_plan(plan)
        , m_writer(writer)
        , m_size(writer.Settings().size)
        , m_composer(plan.root)
        , m_mixer(plan.root, writer.Settings().sampleRate, writer.Settings().channels)
        , m_firstSample(m_mixer.SampleOfFrame(plan.range.in))
    {
    }

    /// Frames of the film.
    std::int64_t Count() const
    {
        return std::llround(double(NLERangeLength(m_plan.range)) * ToDouble(m_plan.frameRate) /
                            ToDouble(m_plan.root->frameRate));
    }

    FilmFrame Make(std::int64_t number)
    {
        FilmFrame frame;
        if (m_writer.HasPicture())
            AddPicture(number, &frame);
        if (m_writer.HasSound())
            AddSound(number, &frame);
        return frame;
    }

private:
    std::int64_t SampleOf(std::int64_t number) const
    {
        return m_firstSample +
               SampleOfFrame(number, m_plan.frameRate, m_writer.Settings().sampleRate);
    }

    /// The frame of the root that shows at a place of the film.
    std::int64_t ShownAt(double number) const
    {
        return m_plan.range.in +
               FrameTime{number, m_plan.frameRate}.ShownAt(m_plan.root->frameRate);
    }

    void AddPicture(std::int64_t number, FilmFrame* frame)
    {
        const int fields = m_writer.Settings().options.fieldOrder;
        const std::int64_t shown = ShownAt(double(number));
        const std::int64_t later =
            fields == NLEField_Progressive ? shown : ShownAt(double(number) + 0.5);
        if (later == shown && PlaceRoot(m_plan.root->size, m_size).size() == m_size) {
            const AVFrame* plain = m_composer.PlainPicture(shown, m_size);
            if (plain && m_writer.Takes(*plain))
                frame->decoded.reset(av_frame_clone(plain));
        }
        if (frame->decoded)
            return;
        frame->picture = Draw(shown);
        if (later != shown)
            TakeLines(Draw(later), fields == NLEField_TopFirst ? 1 : 0, &frame->picture);
    }

    /// Puts every other line of \a source, from \a first on, into \a target.
    static void TakeLines(const QImage& source, int first, QImage* target)
    {
        const QImage lines = source.convertToFormat(target->format());
        for (int y = first; y < target->height(); y += 2)
            std::memcpy(target->scanLine(y), lines.constScanLine(y),
                        std::size_t(std::min(lines.bytesPerLine(), target->bytesPerLine())));
    }

    /// The rendered picture on a frame of the film's size.
    QImage Draw(std::int64_t shown)
    {
        QRect place;
        QImage picture = m_composer.Render(shown, m_size, &place);
        if (picture.size() == m_size)
            return picture;
        QImage frame(m_size, IsDeep(m_plan.root->context) ? QImage::Format_RGBA64_Premultiplied
                                                          : QImage::Format_ARGB32_Premultiplied);
        frame.fill(Qt::transparent);
        if (!picture.isNull())
            QPainter(&frame).drawImage(place.topLeft(), picture);
        return frame;
    }

    void AddSound(std::int64_t number, FilmFrame* frame)
    {
        const std::int64_t first = SampleOf(number);
        const int count = int(SampleOf(number + 1) - first);
        frame->sound.resize(std::size_t(count) * std::size_t(m_writer.Settings().channels));
        m_mixer.Mix(first, count, frame->sound.data());
    }

    const FilmPlan& m_plan;
    const MediaWriter& m_writer;
    const QSize m_size;
    Composer m_composer;
    AudioMixer m_mixer;
    const std::int64_t m_firstSample;
};

/// The thread that makes the frames; it ends with the object.
class MakingThread
{
public:
    MakingThread(FrameMaker& maker, FrameQueue& queue)
        : m_queue(queue), m_thread(StartThread([this, &maker] { Run(maker); }))
    {
    }
    ~MakingThread() { End(); }
    MakingThread(const MakingThread&) = delete;
    MakingThread& operator=(const MakingThread&) = delete;

    bool IsStarted() const { return m_thread.joinable(); }
    /// How it went, when it has ended.
    HRESULT End()
    {
        m_queue.Close();
        if (m_thread.joinable())
            m_thread.join();
        return m_result;
    }

private:
    void Run(FrameMaker& maker)
    {
        LowerThreadPriority();
        m_result = ComGuard([&] {
            const std::int64_t count = maker.Count();
            std::int64_t number = 0;
            while (number < count && m_queue.Put(maker.Make(number)))
                ++number;
            return S_OK;
        });
        m_queue.Close();
    }

    FrameQueue& m_queue;
    HRESULT m_result = S_OK;
    std::thread m_thread;
};

int WaitingFrames(const WriterSettings& settings)
{
    const std::int64_t bytes =
        std::max<std::int64_t>(1, std::int64_t(settings.size.width()) * settings.size.height() * 4);
    return int(std::clamp<std::int64_t>(kMostWaitingBytes / bytes, 1, kMostWaiting));
}

bool Write(MediaWriter& writer, const FilmFrame& frame)
{
    const bool isShown =
        !writer.HasPicture() ||
        (frame.decoded ? writer.WritePicture(*frame.decoded) : writer.WritePicture(frame.picture));
    const auto samples = int(frame.sound.size()) / writer.Settings().channels;
    return isShown && writer.WriteSound(frame.sound.data(), samples);
}

} // namespace

HRESULT WriteFilm(const FilmPlan& plan, MediaWriter& writer,
                  const std::function<bool(int percent)>& goesOn)
{
    FrameMaker maker(plan, writer);
    FrameQueue queue(WaitingFrames(writer.Settings()));
    MakingThread thread(maker, queue);
    if (!thread.IsStarted())
        return E_OUTOFMEMORY;
    const std::int64_t count = maker.Count();
    for (std::int64_t done = 0; done < count; ++done) {
        if (!goesOn(int(done * 100 / count)))
            return S_FALSE;
        const std::optional<FilmFrame> frame = queue.Take();
        if (!frame)
            return thread.End();
        if (!Write(writer, *frame))
            return E_FAIL;
    }
    return thread.End();
}

} // namespace nle
