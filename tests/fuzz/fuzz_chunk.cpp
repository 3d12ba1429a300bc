// SPDX-License-Identifier: LGPL-2.1-or-later
// Files of the preview cache, their pictures, and a folder that holds one.
#include "Fuzz.h"
#include "NLECore/media/PictureCodec.h"
#include "NLECore/render/ChunkFile.h"
#include "NLECore/render/ChunkStore.h"

#include <QDir>
#include <QImage>

namespace {

constexpr nle::ContentKey kKey = {1, 2};
constexpr int kPictures = 4;
constexpr QSize kSize(64, 36);

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto store = nle::ChunkStore::Of(fuzz::Folder());
    fuzz::Require(store->Prepare(), "a folder for the cache");
    const QString path = store->PathOf(kKey);
    const QByteArray name = QDir(fuzz::Folder()).relativeFilePath(path).toUtf8();
    fuzz::Write(name.constData(), QByteArray(reinterpret_cast<const char*>(data), int(size)));
    store->Refresh();
    if (const auto chunk = nle::ChunkReader::Open(path, kKey)) {
        const auto decoder = nle::PictureDecoder::Open(chunk->Format());
        for (int index = 0; index < kPictures; ++index) {
            const QByteArray picture = chunk->Picture(index);
            if (decoder && !picture.isEmpty())
                decoder->Decode(picture, kSize);
        }
    }
    store->Read(kKey);
    store->Remove(kKey);
    return 0;
}
