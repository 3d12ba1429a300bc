// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>
#include <QtGlobal>

/// A language of the user interface. The numbers are fixed.
enum Language_Locale : qint32
{
    Language_None = 0, ///< before the first selection
    Language_English = 1,
    Language_Japanese = 2,
    Language_German = 3,
    Language_French = 4,
    Language_Portuguese = 5,
    Language_Esm = 6, ///< known to LangConstInfo::DirName() only; no row of the table carries it
    Language_Spanish = 7,
    Language_Italian = 8,
    Language_ChineseTW = 9,
    Language_ChineseHK = 10,
    Language_Russian = 11,
    Language_Dutch = 12,
    Language_Arabic = 13,
    Language_Korean = 14,
    Language_Polish = 15,
    Language_Romanian = 16,
    Language_Indonesian = 17,
    Language_Swedish = 18
};

/// What identifies a language of the user interface: one row of the language table.
class COMMONLIB_EXPORT LangConstInfo
{
public:
    /// No language, with empty texts.
    LangConstInfo();
    LangConstInfo(const LangConstInfo& other);
    ~LangConstInfo();
    LangConstInfo& operator=(const LangConstInfo& other);

    /// Code that services outside the editor know the language by: langCode, but for Spanish "es",
    /// for Chinese "zh_tw" and "zh_hk", for Arabic "ae" and for Korean "kr".
    QString AdaptLangCode() const;
    /// Name of the folder in "Lang/" that holds the translation files: langCode, but for Spanish
    /// "esp", for Chinese "cht" and "zhh", and "esm" for the value 6.
    QString DirName() const;

    /// Whether \a text is langCode, regionCode, simpleName1 or englishName, case included.
    bool Contains(const QString& text) const;
    /// Whether this is the row of \a value.
    bool Contains(const Language_Locale& value) const;

    Language_Locale locale; ///< the value of the row
    QString langCode;       ///< two letters, "zh"
    QString regionCode;     ///< two letters, "TW"
    QString simpleName1;    ///< three letters, "CHT"; the form in which a choice is stored
    QString simpleName2;    ///< empty in every row of the table
    QString englishName;    ///< "Chinese TW"; some are names of countries, such as "Poland"
};

/// The table of the seventeen languages. Sets \a count to their number and gives the first row; the
/// table lives as long as the library.
COMMONLIB_EXPORT const LangConstInfo* GetGlobalLangConstInfos(int& count);
