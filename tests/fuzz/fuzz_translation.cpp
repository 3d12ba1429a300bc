// SPDX-License-Identifier: LGPL-2.1-or-later
// Translation files: Qt loads what is found to be sound, and looks texts up in it.
#include "CommonLib/languages/TranslationFile_p.h"
#include "Fuzz.h"

#include <QTranslator>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path =
        fuzz::Write("texts.qm", QByteArray(reinterpret_cast<const char*>(data), int(size)));
    if (!IsSoundTranslationFile(path))
        return 0;
    QTranslator translator;
    if (!translator.load(path))
        return 0; // it asks for more than that nothing breaks
    for (const char* text : {"", "Open", "%n frames"})
        translator.translate("Editor", text, nullptr, 3);
    return 0;
}
