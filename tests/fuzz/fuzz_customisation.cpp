// SPDX-License-Identifier: LGPL-2.1-or-later
// Files of customised builds.
#include "CVUtilities/Customization.h"
#include "Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Customization values;
    const QString path =
        fuzz::Write("values.xml", QByteArray(reinterpret_cast<const char*>(data), int(size)));
    const bool isLoaded = values.Load(path);
    const auto value = values.Value(QStringLiteral("Web"), QStringLiteral("Home"));
    fuzz::Require(isLoaded || !value, "a file that is refused has no values");
    fuzz::Require(!value || *value == value->trimmed(), "values have no white space at their ends");
    return 0;
}
