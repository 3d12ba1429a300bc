// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/StillPictures.h"

#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/StillReader_p.h"

#include <algorithm>
#include <utility>

namespace nle {
namespace {

constexpr int kPixelBytes = 4;

std::int64_t BytesOf(const QSize& size)
{
    return std::int64_t(size.width()) * size.height() * kPixelBytes;
}

QSize Halved(const QSize& size)
{
    return QSize(size.width() / 2, size.height() / 2).expandedTo(QSize(1, 1));
}

// The picture's own size, halved until it takes no more than so many bytes.
QSize WholeSize(QSize size, std::int64_t limit)
{
    while (BytesOf(size) > limit)
        size = Halved(size);
    return size;
}

bool Fits(const QSize& inner, const QSize& outer)
{
    return inner.width() <= outer.width() && inner.height() <= outer.height();
}

auto Order(const FileStamp& stamp)
{
    return std::tie(stamp.size, stamp.modifiedNs, stamp.changedNs, stamp.volume, stamp.file);
}

} // namespace

bool StillPictures::KeyLess::operator()(const Key& a, const Key& b) const
{
    const auto order = [](const Key& key) {
        return std::tuple_cat(std::tie(std::get<0>(key)), Order(std::get<1>(key)),
                              std::tie(std::get<2>(key), std::get<3>(key), std::get<4>(key)));
    };
    return order(a) < order(b);
}

StillPictures::StillPictures(std::int64_t capacity) : m_shelfCapacity(capacity / 2) {}

StillPictures::Key StillPictures::KeyOf(const StillPicture& still, const QSize& size)
{
    return {still.path, still.stamp, still.stream, size.width(), size.height()};
}

QImage StillPictures::Picture(const StillPicture& still, const QSize& size)
{
    if (size.isEmpty())
        return {};
    return Get(m_guarded.shown, still, size, [&] { return Make(still, size); });
}

QImage StillPictures::Make(const StillPicture& still, const QSize& size)
{
    const QSize whole = WholeSize(still.ownSize, m_shelfCapacity / 4 * 3);
    if (!still.isKeptWhole || still.ownSize.isEmpty() || !Fits(size, whole))
        return still.read(size);
    int halvings = 0;
    QSize smallest = whole;
    for (QSize half = Halved(whole); half != smallest && Fits(size, half); half = Halved(half)) {
        smallest = half;
        ++halvings;
    }
    const QImage picture = Reduced(still, whole, halvings);
    return picture.isNull() || picture.size() == size ? picture : ScalePicture(picture, size);
}

QImage StillPictures::Reduced(const StillPicture& still, const QSize& whole, int halvings)
{
    QSize size = whole;
    for (int i = 0; i < halvings; ++i)
        size = Halved(size);
    return Get(m_guarded.whole, still, size, [&] {
        if (halvings == 0)
            return still.read(size);
        const QImage larger = Reduced(still, whole, halvings - 1);
        return larger.isNull() ? larger : ScalePicture(larger, size);
    });
}

QImage StillPictures::Get(Shelf& shelf, const StillPicture& still, const QSize& size,
                          const std::function<QImage()>& make)
{
    const Key key = KeyOf(still, size);
    std::packaged_task<QImage()> task(make);
    Answer answer;
    bool isOurs = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (QImage image = Find(shelf, key); !image.isNull())
            return image;
        const auto pending = shelf.pending.find(key);
        isOurs = pending == shelf.pending.end();
        answer = isOurs ? task.get_future().share() : pending->second;
        if (isOurs)
            shelf.pending.emplace(key, answer);
    }
    if (!isOurs)
        return answer.get();
    task();
    const bool isLasting = StampOf(still.path) == still.stamp && !IsFresh(still.stamp);
    const std::lock_guard<std::mutex> lock(m_mutex);
    shelf.pending.erase(key);
    QImage image = answer.get();
    if (isLasting && !image.isNull())
        Insert(shelf, key, image);
    return image;
}

QImage StillPictures::Find(Shelf& shelf, const Key& key)
{
    const auto place = shelf.places.find(key);
    if (place == shelf.places.end())
        return {};
    shelf.entries.splice(shelf.entries.begin(), shelf.entries, place->second);
    return place->second->image;
}

void StillPictures::Insert(Shelf& shelf, const Key& key, const QImage& image)
{
    if (image.sizeInBytes() > m_shelfCapacity || shelf.places.count(key) > 0)
        return;
    const auto drop = [&shelf](Entries::iterator entry) {
        shelf.bytes -= entry->image.sizeInBytes();
        shelf.places.erase(entry->key);
        return shelf.entries.erase(entry);
    };
    // Another content of the same file is gone for good.
    const auto isOutdated = [&key](const Entry& entry) {
        return std::get<0>(entry.key) == std::get<0>(key) &&
               !(std::get<1>(entry.key) == std::get<1>(key));
    };
    for (auto entry = shelf.entries.begin(); entry != shelf.entries.end();)
        entry = isOutdated(*entry) ? drop(entry) : std::next(entry);
    while (shelf.bytes + image.sizeInBytes() > m_shelfCapacity)
        drop(std::prev(shelf.entries.end()));
    shelf.entries.push_front({key, image});
    shelf.places.emplace(key, shelf.entries.begin());
    shelf.bytes += image.sizeInBytes();
}

void StillPictures::Clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Shelf* shelf : {&m_guarded.shown, &m_guarded.whole}) {
        shelf->places.clear();
        shelf->entries.clear();
        shelf->bytes = 0;
    }
}

std::int64_t StillPictures::Bytes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_guarded.shown.bytes + m_guarded.whole.bytes;
}

StillPictures& Stills()
{
    static StillPictures s_stills;
    return s_stills;
}

} // namespace nle
