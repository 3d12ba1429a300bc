// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"
#include "CommonLib/LangConstInfo.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

class CBSUrlReader;
class LanguageTranslators;
class QTranslator;

/// The language of the user interface: its translators, its font, and the choice that is kept.
///
/// Construction loads the translation files of all languages from "Lang/" in the module folders
/// (ModuleFolders.h); nothing is selected yet and the application's font is untouched. Selecting a
/// language removes the translators of the one before, sets the application's font when the new
/// language needs another, stores the choice in an ini file and installs the new translators. When
/// one of the two languages has translations, Qt sends QEvent::LanguageChange to every window.
///
/// The ini file holds either what it held before or the whole new choice: one that cannot be
/// written, is no regular file or is longer than 1 MiB stays as it is, and the language is selected
/// all the same.
///
/// Needs a QApplication. For the GUI thread only; created without a lock. Who hears of a change (a
/// slot, a widget's event) may call Release() or select another language.
class COMMONLIB_EXPORT MultiLangMgr : public QObject
{
    Q_OBJECT

public:
    /// The one instance; the first call creates it.
    static MultiLangMgr* GetInstance();
    /// Deletes the instance, if any, with all translators; GetInstance() starts afresh. The font
    /// stays as it is.
    static void Release();

    /// Whether \a locale is the current language. Creates the instance when there is none.
    static bool IsCurLanguage_Locale(Language_Locale locale);
    /// The current language; Language_None before the first selection.
    Language_Locale GetLangLocale() const;
    /// The row of the current language; the English one when there is none.
    LangConstInfo GetLangConstInfo() const;
    /// Three-letter code of the current language, "ENG"; empty when the table has no row for it.
    QString GetSimpleName1() const;
    /// Always empty, since no row has a second simple name.
    QString GetSimpleName2() const;

    /// Path of the ini file, at first "Multilang.ini" beside the executable.
    QString GetConfigPath() const;
    /// Takes effect with the next selection; nothing is read or written now.
    void SetConfigPath(QString path);

    /// The family that suits the current language; "Segoe UI" before the first selection. When the
    /// system has none of those that suit, this is the preferred one of them, while the application
    /// uses the system's default.
    QString GetCurrentFontFamily() const;

    /// The languages in the order of a menu.
    QVector<Language_Locale>& LangCodeIter();

    /// Selects the language that the ini file names, English when it names none. A missing file is
    /// created; one that cannot be read stays as it is.
    void SetLangLocale();
    /// Selects a language; nothing happens when it is current. A value without a row in the table
    /// becomes current as well: it has no translators, and an empty name is stored.
    void SetLangLocale(Language_Locale locale);
    /// Selects the language with this English name ("German", "Chinese TW"); codes do not count.
    /// Nothing happens when there is none or it is current.
    void SetLangLocale(QString englishName);

Q_SIGNALS:
    /// The application's font has been replaced; \a fontFamily is GetCurrentFontFamily().
    void sigFontFamilyChanged(const QString& fontFamily);

private:
    explicit MultiLangMgr(QObject* parent = nullptr);
    ~MultiLangMgr() override;

    void Init();
    void Select(Language_Locale locale, bool isStored = true);
    void LoadCurrentLang();
    void InstallCurrentLang();
    void RemoveCurrentLang();
    void StoreCurrentLang();
    /// Those of the current language; none when the table has no row for it.
    QList<QPointer<QTranslator>> TranslatorsOfCurrent() const;

    void ResetFont();
    void ResetFont(const QStringList& families);
    QStringList GetFontFamilyList(const Language_Locale& locale) const;
    QString GetValidFontFamily(const QStringList& families) const;
    bool IsSameFontFamily(const Language_Locale& a, const Language_Locale& b) const;
    void LanguageChangedEvent(const Language_Locale& previous);

    QList<LanguageTranslators*> m_translators; ///< one for each row of the table; owned
    Language_Locale m_curLocale;
    CBSUrlReader* m_urlReader; ///< child
    QString m_configPath;
    QString m_defaultFontFamily; ///< the system's
    QString m_curFontFamily;
};
