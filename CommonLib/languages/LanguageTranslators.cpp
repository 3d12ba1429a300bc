// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/languages/LanguageTranslators_p.h"

#include "CommonLib/languages/LanguageTable_p.h"
#include "CommonLib/languages/TranslationFile_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

LanguageTranslators::LanguageTranslators(Language_Locale value) : locale(Language_English)
{
    QString name = QStringLiteral("en");
    if (const LangConstInfo* row = FindLanguage(value)) {
        locale = value;
        name = row->DirName();
    }
    const QString folder = QCoreApplication::applicationDirPath() + "/Lang/" + name + '/';
    const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
    for (const QString& file : files) {
        auto* translator = new QTranslator;
        if (IsSoundTranslationFile(folder + file))
            translator->load(folder + file);
        translators.append(translator);
    }
}

LanguageTranslators::~LanguageTranslators()
{
    qDeleteAll(translators);
}
