// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/LangConstInfo.h"

#include <QList>

class QTranslator;

/// The translation files of one language, loaded.
class LanguageTranslators
{
public:
    /// Loads every file of the language's folder, "Lang/<folder>/", in the module folders; those
    /// beside the executable come last, so that their texts hold. A file that cannot be loaded
    /// gives a translator that is empty. A value without a row in the table is taken for English.
    explicit LanguageTranslators(Language_Locale value);
    ~LanguageTranslators();
    LanguageTranslators(const LanguageTranslators&) = delete;
    LanguageTranslators& operator=(const LanguageTranslators&) = delete;

    Language_Locale locale;
    QList<QTranslator*> translators; ///< owned
};
