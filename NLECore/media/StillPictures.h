// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>

#include <cstdint>
#include <functional>
#include <future>
#include <list>
#include <map>
#include <mutex>
#include <tuple>

namespace nle {

/// A still picture in a file, and how it is read.
struct StillPicture
{
    QString path;
    /// That of the file when the picture was opened.
    FileStamp stamp;
    int stream = 0;
    /// Size of the picture as it stands in the file, upright, in pixels.
    QSize ownSize;
    /// Reading costs much more than scaling, so the whole picture is worth keeping beside the sizes
    /// that are shown. Not so for what is drawn anew at each size or read once.
    bool isKeptWhole = true;
    /// Reads the picture at a size in pixels, without regard to its aspect; null on failure.
    std::function<QImage(const QSize&)> read;
};

/// Still pictures at the sizes that they are shown at, and as they are while they are small.
///
/// Each is read and scaled once for as long as there is room, the least recently used goes first;
/// two threads that want the same picture wait for one reading. What belongs to a file that was
/// changed since is never given out. For any thread.
class StillPictures
{
public:
    static constexpr std::int64_t kDefaultCapacity = std::int64_t(288) << 20;

    /// Keeps at most \a capacity bytes of pixels: half of them shown sizes, half whole
    /// pictures with their halves, quarters and so on.
    explicit StillPictures(std::int64_t capacity = kDefaultCapacity);
    StillPictures(const StillPictures&) = delete;
    StillPictures& operator=(const StillPictures&) = delete;

    /// \a still at \a size, as Format_ARGB32 with straight alpha; null when \a size is empty or the
    /// picture cannot be read. The pixels are shared with the cache.
    QImage Picture(const StillPicture& still, const QSize& size);

    /// Forgets all pictures.
    void Clear();
    /// Bytes of pixels that are kept now.
    std::int64_t Bytes() const;

private:
    /// Path, stamp, stream and size.
    using Key = std::tuple<QString, FileStamp, int, int, int>;
    struct KeyLess
    {
        bool operator()(const Key& a, const Key& b) const;
    };
    using Answer = std::shared_future<QImage>;

    struct Entry
    {
        Key key;
        QImage image;
    };
    using Entries = std::list<Entry>;

    struct Shelf
    {
        Entries entries; ///< the one asked for last stands first
        std::map<Key, Entries::iterator, KeyLess> places;
        std::map<Key, Answer, KeyLess> pending; ///< being made by some thread
        std::int64_t bytes = 0;
    };

    static Key KeyOf(const StillPicture& still, const QSize& size);
    QImage Make(const StillPicture& still, const QSize& size);
    /// The picture at the size \a whole, halved so many times. Each is kept, so that what moves and
    /// zooms scales little each time.
    QImage Reduced(const StillPicture& still, const QSize& whole, int halvings);
    QImage Get(Shelf& shelf, const StillPicture& still, const QSize& size,
               const std::function<QImage()>& make);
    /// Needs the lock.
    QImage Find(Shelf& shelf, const Key& key);
    /// Puts \a image in front and drops what has no room. Needs the lock.
    void Insert(Shelf& shelf, const Key& key, const QImage& image);

    const std::int64_t m_shelfCapacity;
    struct Guarded
    {
        Shelf shown;
        Shelf whole;
    };
    mutable std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;
};

/// The engine's still pictures, shared by all extractors and renders.
StillPictures& Stills();

} // namespace nle
