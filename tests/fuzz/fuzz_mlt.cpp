// SPDX-License-Identifier: LGPL-2.1-or-later
// Documents in MLT's XML.
#include "Documents.h"
#include "NLECore/model/MltReader.h"
#include "NLECore/model/MltWriter.h"

#include <QRegularExpression>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    // An entry that stands there hundreds of times only takes its time.
    static const QRegularExpression hundreds(QStringLiteral("repeat=.?[0-9]{3}"));
    if (QString::fromLatin1(text).contains(hundreds))
        return 0;
    fuzz::CheckDocument<nle::MltReader>(text,
                                        [](const nle::TimelineNode& node, const QDir& folder) {
                                            QString written;
                                            nle::MltWriter(written, folder).Write(node);
                                            return written.toUtf8();
                                        });
    return 0;
}
