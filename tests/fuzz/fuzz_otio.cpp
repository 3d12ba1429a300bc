// SPDX-License-Identifier: LGPL-2.1-or-later
// Documents in OpenTimelineIO's JSON.
#include "Documents.h"
#include "NLECore/model/OtioReader.h"
#include "NLECore/model/OtioWriter.h"

// Qt's JSON reader leaves what it had read of a text that breaks off.
extern "C" Q_DECL_EXPORT const char* __lsan_default_suppressions() // NOLINT
{
    return "leak:libQt5Core";
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    fuzz::CheckDocument<nle::OtioReader>(text,
                                         [](const nle::TimelineNode& node, const QDir& folder) {
                                             return nle::OtioWriter(folder).Write(node);
                                         });
    return 0;
}
