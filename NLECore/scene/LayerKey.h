// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ContentHash.h"
#include "NLECore/scene/Layer.h"

#include <map>
#include <unordered_map>

namespace nle {

/// Whether \a layer can ever show a picture.
bool HasPicture(const Layer& layer);

/// Keys of layers: equal for layers that draw the same picture of the same frame of their content.
///
/// Neither place in time nor sound goes into a key, nor what a composite holds. Media counts with
/// its path and with size and time of its file as they are when an object of this class first meets
/// it, so another object tells whether a file has changed since. One object serves one thread.
class LayerKeys
{
public:
    /// Values with key frames count by their being there: AddFrames() tells the rest.
    ContentKey Of(const Layer& layer);
    /// Whether the numbers of its frames have to count beside the layer's key and AddFrames().
    static bool CountsFrames(const Layer& layer);
    /// Adds what key frames of effects make of the layer's frames \a first to \a last, counted as
    /// its trim range is, and of a title what shows in each.
    static void AddFrames(ContentHash& hash, const Layer& layer, std::int64_t first,
                          std::int64_t last);
    /// Adds the values that have no key frames, and which ones have some.
    void AddParameters(ContentHash& hash, const ParameterValues& values);
    /// Adds what the key frames make of the frames \a first to \a last.
    static void AddParameterFrames(ContentHash& hash, const ParameterValues& values,
                                   std::int64_t first, std::int64_t last);

private:
    static void AddMoments(ContentHash& hash, const Layer& layer, std::int64_t first,
                           std::int64_t last);
    template <typename Value>
    void AddField(ContentHash& hash, const Layer& layer, const Value& value);
    ContentKey OfMedia(const MediaInfo& media);
    ContentKey OfFile(const QString& path);

    std::unordered_map<const Layer*, ContentKey> m_layers;
    std::unordered_map<const MediaInfo*, ContentKey> m_media;
    std::map<QString, ContentKey> m_files;
};

} // namespace nle
