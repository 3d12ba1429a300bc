// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/LangConstInfo.h"

#include <QVector>

/// The values of the language table in its order.
QVector<Language_Locale>& LanguageCodes();

/// The row that carries \a value; null when there is none.
const LangConstInfo* FindLanguage(Language_Locale value);
