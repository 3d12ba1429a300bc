// SPDX-License-Identifier: LGPL-2.1-or-later
// Settings of clips as documents hold them, key frames among them: lines of "name=value".
#include "Fuzz.h"
#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/SettingsText.h"
#include "NLECore/model/TitleClip.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    nle::DocumentFields properties;
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    for (const QByteArray& line : text.split('\n')) {
        const int sign = line.indexOf('=');
        properties.insert(QString::fromUtf8(line.left(sign)),
                          QString::fromUtf8(line.mid(sign + 1)));
    }
    const auto noMedia = [](const QString&) { return std::shared_ptr<const nle::MediaInfo>(); };
    const auto taken = [&](const nle::DocumentFields& texts) {
        const auto clip = MakeCom<nle::TitleClip>(NLESize{320, 180}, NLERational{25, 1});
        nle::SettingsFromText(texts, noMedia, *clip);
        nle::DocumentFields written;
        for (const auto& [name, value] : nle::SettingsToText(*clip, QDir(fuzz::Folder())))
            written.insert(name, value);
        return written;
    };
    const nle::DocumentFields once = taken(properties);
    fuzz::Require(taken(once) == once, "settings are written as they were read");
    return 0;
}
