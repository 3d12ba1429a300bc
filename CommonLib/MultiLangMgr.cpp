// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/MultiLangMgr.h"

#include "CommonLib/CBSUrlReader.h"
#include "CommonLib/languages/LanguageConfig_p.h"
#include "CommonLib/languages/LanguageTable_p.h"
#include "CommonLib/languages/LanguageTranslators_p.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPointer>
#include <QTranslator>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

MultiLangMgr* s_instance = nullptr;

} // namespace

MultiLangMgr::MultiLangMgr(QObject* parent)
    : QObject(parent)
    , m_curLocale(Language_None)
    , m_urlReader(new CBSUrlReader(this))
    , m_configPath(QCoreApplication::applicationDirPath() + "/Multilang.ini")
    , m_defaultFontFamily(QFont().family())
    , m_curFontFamily(QStringLiteral("Segoe UI"))
{
    Init();
}

MultiLangMgr::~MultiLangMgr()
{
    qDeleteAll(m_translators);
}

void MultiLangMgr::Init()
{
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    for (int row = 0; row < count; ++row)
        m_translators.append(new LanguageTranslators(rows[row].locale));
}

MultiLangMgr* MultiLangMgr::GetInstance()
{
    if (!s_instance)
        s_instance = new MultiLangMgr;
    return s_instance;
}

void MultiLangMgr::Release()
{
    // The end of a translator is heard of too, and who hears may come back here.
    delete std::exchange(s_instance, nullptr);
}

bool MultiLangMgr::IsCurLanguage_Locale(Language_Locale locale)
{
    return GetInstance()->m_curLocale == locale;
}

Language_Locale MultiLangMgr::GetLangLocale() const
{
    return m_curLocale;
}

LangConstInfo MultiLangMgr::GetLangConstInfo() const
{
    int count = 0;
    const LangConstInfo* row = FindLanguage(m_curLocale);
    return row ? *row : *GetGlobalLangConstInfos(count);
}

QString MultiLangMgr::GetSimpleName1() const
{
    const LangConstInfo* row = FindLanguage(m_curLocale);
    return row ? row->simpleName1 : QString();
}

QString MultiLangMgr::GetSimpleName2() const
{
    // Empty in every row. Kept: see docs/compatibility.md.
    const LangConstInfo* row = FindLanguage(m_curLocale);
    return row ? row->simpleName2 : QString();
}

QString MultiLangMgr::GetConfigPath() const
{
    return m_configPath;
}

void MultiLangMgr::SetConfigPath(QString path)
{
    m_configPath = std::move(path);
}

QString MultiLangMgr::GetCurrentFontFamily() const
{
    return m_curFontFamily;
}

QVector<Language_Locale>& MultiLangMgr::LangCodeIter()
{
    return LanguageCodes();
}

void MultiLangMgr::SetLangLocale()
{
    const LanguageConfig config(m_configPath);
    config.CreateWhenMissing();
    const std::optional<QString> name = config.Name();
    Language_Locale wanted = Language_English;
    if (name && !name->isEmpty()) {
        int count = 0;
        const LangConstInfo* rows = GetGlobalLangConstInfos(count);
        const auto* found = std::find_if(rows, rows + count, [&name](const LangConstInfo& row) {
            return row.simpleName1 == *name || row.simpleName2 == *name;
        });
        if (found != rows + count)
            wanted = found->locale;
    }
    Select(wanted, name.has_value()); // what could not be read stays
}

void MultiLangMgr::SetLangLocale(Language_Locale locale)
{
    Select(locale);
}

void MultiLangMgr::SetLangLocale(QString englishName)
{
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    const auto* found = std::find_if(rows, rows + count, [&](const LangConstInfo& row) {
        return row.englishName == englishName;
    });
    if (found != rows + count)
        Select(found->locale);
}

void MultiLangMgr::Select(Language_Locale locale, bool isStored)
{
    if (locale == m_curLocale)
        return;
    // Who hears of a step may release the manager or select another language.
    const QPointer<MultiLangMgr> self(this);
    const Language_Locale previous = m_curLocale;
    RemoveCurrentLang();
    if (!self || m_curLocale != previous)
        return;
    m_curLocale = locale;
    LanguageChangedEvent(previous);
    if (self && m_curLocale == locale)
        isStored ? LoadCurrentLang() : InstallCurrentLang();
}

void MultiLangMgr::StoreCurrentLang()
{
    const LanguageConfig config(m_configPath);
    config.CreateWhenMissing();
    config.Store(GetSimpleName1(),
                 m_urlReader->ReadCustomerUrl(GetSimpleName1(), QStringLiteral("PID")));
}

QList<QPointer<QTranslator>> MultiLangMgr::TranslatorsOfCurrent() const
{
    QList<QPointer<QTranslator>> translators;
    for (const LanguageTranslators* set : m_translators) {
        if (set->locale != m_curLocale)
            continue;
        for (QTranslator* translator : set->translators)
            translators.append(translator);
    }
    return translators;
}

void MultiLangMgr::LoadCurrentLang()
{
    StoreCurrentLang();
    InstallCurrentLang();
}

void MultiLangMgr::InstallCurrentLang()
{
    const Language_Locale locale = m_curLocale;
    const QPointer<MultiLangMgr> self(this);
    for (const QPointer<QTranslator>& translator : TranslatorsOfCurrent()) {
        if (!self || m_curLocale != locale)
            return;
        // It is in already when a listener went to another language and back.
        QCoreApplication::removeTranslator(translator);
        if (translator)
            QCoreApplication::installTranslator(translator);
    }
}

void MultiLangMgr::RemoveCurrentLang()
{
    for (const QPointer<QTranslator>& translator : TranslatorsOfCurrent()) {
        if (translator)
            QCoreApplication::removeTranslator(translator);
    }
}

void MultiLangMgr::ResetFont()
{
    ResetFont(GetFontFamilyList(m_curLocale));
}

void MultiLangMgr::ResetFont(const QStringList& families)
{
    if (families.isEmpty())
        return;
    m_curFontFamily = GetValidFontFamily(families);
    QFont font;
    if (m_curFontFamily.isEmpty()) {
        font.setFamily(m_defaultFontFamily);
        // Reported although the font is the system's. Kept: see docs/compatibility.md.
        m_curFontFamily = families.first();
    } else {
        font.setFamily(m_curFontFamily);
    }
    font.setStyleStrategy(QFont::PreferAntialias);
    const QPointer<MultiLangMgr> self(this);
    QApplication::setFont(font);
    if (!self)
        return;
    const QString family = m_curFontFamily; // a slot may release the manager
    Q_EMIT sigFontFamilyChanged(family);
}

QStringList MultiLangMgr::GetFontFamilyList(const Language_Locale& locale) const
{
    switch (locale) {
    case Language_Japanese:
        return {QStringLiteral("Yu Gothic UI")};
    case Language_Korean:
        return {QStringLiteral("Malgun Gothic")};
    case Language_ChineseTW:
    case Language_ChineseHK:
        return {QStringLiteral("Microsoft JhengHei UI")};
    default:
        return {QStringLiteral("Tahoma"), QStringLiteral("Segoe UI"), QStringLiteral("Arial")};
    }
}

QString MultiLangMgr::GetValidFontFamily(const QStringList& families) const
{
    const QFontDatabase fonts;
    const auto found =
        std::find_if(families.begin(), families.end(),
                     [&fonts](const QString& family) { return fonts.hasFamily(family); });
    return found == families.end() ? QString() : *found;
}

bool MultiLangMgr::IsSameFontFamily(const Language_Locale& a, const Language_Locale& b) const
{
    const auto isChinese = [](Language_Locale locale) {
        return locale == Language_ChineseTW || locale == Language_ChineseHK;
    };
    const auto hasOwn = [](Language_Locale locale) {
        return locale == Language_None || locale == Language_Japanese || locale == Language_Korean;
    };
    if (a == b || (isChinese(a) && isChinese(b)))
        return true;
    // Between Chinese and the languages that share the common list the font stays, although their
    // lists differ. Kept: see docs/compatibility.md.
    return !hasOwn(a) && !hasOwn(b);
}

void MultiLangMgr::LanguageChangedEvent(const Language_Locale& previous)
{
    if (!IsSameFontFamily(m_curLocale, previous))
        ResetFont();
}
