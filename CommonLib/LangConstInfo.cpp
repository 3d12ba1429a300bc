// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/LangConstInfo.h"

#include "CommonLib/languages/LanguageTable_p.h"

#include <algorithm>
#include <array>

namespace {

LangConstInfo Row(Language_Locale locale, const char* langCode, const char* regionCode,
                  const char* simpleName, const char* englishName)
{
    LangConstInfo row;
    row.locale = locale;
    row.langCode = QLatin1String(langCode);
    row.regionCode = QLatin1String(regionCode);
    row.simpleName1 = QLatin1String(simpleName);
    row.englishName = QLatin1String(englishName);
    return row;
}

// The order is the one of language menus, not that of the values. Countries in place of languages
// among the English names, and "ARG" for Arabic, are kept: see docs/compatibility.md.
const std::array<LangConstInfo, 17> kTable = {
    Row(Language_English, "en", "US", "ENG", "English"),
    Row(Language_German, "de", "DE", "DEU", "German"),
    Row(Language_Spanish, "es", "ES", "ESP", "Spanish"),
    Row(Language_French, "fr", "FR", "FRA", "French"),
    Row(Language_Italian, "it", "IT", "ITA", "Italian"),
    Row(Language_Portuguese, "pt", "PT", "PTG", "Portuguese"),
    Row(Language_Japanese, "ja", "JP", "JPN", "Japanese"),
    Row(Language_ChineseTW, "zh", "TW", "CHT", "Chinese TW"),
    Row(Language_ChineseHK, "zh", "HK", "ZHH", "Chinese HK"),
    Row(Language_Russian, "ru", "RU", "RUS", "Russian"),
    Row(Language_Dutch, "nl", "NL", "NLD", "Netherlands"),
    Row(Language_Arabic, "ar", "AE", "ARG", "Arabic"),
    Row(Language_Korean, "ko", "KR", "KOR", "Korean"),
    Row(Language_Polish, "pl", "PL", "PLK", "Poland"),
    Row(Language_Romanian, "ro", "RO", "ROM", "Romania"),
    Row(Language_Indonesian, "id", "ID", "IDN", "Indonesia"),
    Row(Language_Swedish, "sv", "SE", "SWE", "Sweden"),
};

QVector<Language_Locale> TableCodes()
{
    QVector<Language_Locale> codes;
    for (const LangConstInfo& row : kTable)
        codes.append(row.locale);
    return codes;
}

QVector<Language_Locale> s_codes = TableCodes();

} // namespace

LangConstInfo::LangConstInfo() : locale(Language_None) {}

LangConstInfo::LangConstInfo(const LangConstInfo& other) = default;

LangConstInfo::~LangConstInfo() = default;

LangConstInfo& LangConstInfo::operator=(const LangConstInfo& other) = default;

QString LangConstInfo::AdaptLangCode() const
{
    switch (locale) {
    case Language_Spanish:
        return QStringLiteral("es");
    case Language_ChineseTW:
        return QStringLiteral("zh_tw");
    case Language_ChineseHK:
        return QStringLiteral("zh_hk");
    case Language_Arabic:
        return QStringLiteral("ae");
    case Language_Korean:
        return QStringLiteral("kr");
    default:
        return langCode;
    }
}

QString LangConstInfo::DirName() const
{
    switch (locale) {
    case Language_Esm:
        return QStringLiteral("esm");
    case Language_Spanish:
        return QStringLiteral("esp");
    case Language_ChineseTW:
        return QStringLiteral("cht");
    case Language_ChineseHK:
        return QStringLiteral("zhh");
    default:
        return langCode;
    }
}

bool LangConstInfo::Contains(const QString& text) const
{
    return text == langCode || text == regionCode || text == simpleName1 || text == englishName;
}

bool LangConstInfo::Contains(const Language_Locale& value) const
{
    return value == locale;
}

const LangConstInfo* GetGlobalLangConstInfos(int& count)
{
    count = static_cast<int>(kTable.size());
    return kTable.data();
}

QVector<Language_Locale>& LanguageCodes()
{
    return s_codes;
}

const LangConstInfo* FindLanguage(Language_Locale value)
{
    const auto found = std::find_if(kTable.begin(), kTable.end(),
                                    [value](const auto& row) { return row.Contains(value); });
    return found == kTable.end() ? nullptr : &*found;
}
