// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/languages/LanguageTranslators_p.h"

#include "CommonLib/ModuleFolders_p.h"
#include "CommonLib/languages/LanguageTable_p.h"
#include "CommonLib/languages/TranslationFile_p.h"

#include <QTranslator>

LanguageTranslators::LanguageTranslators(Language_Locale value) : locale(Language_English)
{
    QString name = QStringLiteral("en");
    if (const LangConstInfo* row = FindLanguage(value)) {
        locale = value;
        name = row->DirName();
    }
    for (const QString& file : FindModuleFiles("Lang/" + name)) {
        auto* translator = new QTranslator;
        if (IsSoundTranslationFile(file))
            static_cast<void>(translator->load(file)); // else it stays empty
        translators.append(translator);
    }
}

LanguageTranslators::~LanguageTranslators()
{
    qDeleteAll(translators);
}
