// SPDX-License-Identifier: LGPL-2.1-or-later
// Font files of a folder, as captions use them, and what is kept of them: the first byte chooses.
#include "Fuzz.h"
#include "NLECore/media/FontCache.h"
#include "NLECore/media/FontFiles.h"

#include <QDir>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    if (input.Take<std::uint8_t>() % 8 == 0) {
        nle::FontCache cache;
        cache.Open(fuzz::Write("cache.xml", input.Rest()));
        cache.Prune(fuzz::Folder(), {});
        return 0;
    }
    QDir(fuzz::Folder()).mkdir(QStringLiteral("fonts"));
    fuzz::Write("fonts/font.ttf", input.Rest());
    nle::FontFiles files;
    for (const QString& family : files.Scan(fuzz::Folder() + QStringLiteral("/fonts")))
        fuzz::Require(!family.isEmpty(), "a family has a name");
    return 0;
}
