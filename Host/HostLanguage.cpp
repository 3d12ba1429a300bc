// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/HostLanguage.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/MultiLangMgr.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// Where the choice is kept: \a beside the executable where the program has a folder of its own
/// that can be written, as its translations there tell, and else among the user's settings.
QString ChoicePath(const QString& beside)
{
    const QFileInfo folder(QFileInfo(beside).path());
    if (folder.isWritable() && QFileInfo(folder.filePath() + QStringLiteral("/Lang")).isDir())
        return beside;
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(settings);
    return settings + '/' + QFileInfo(beside).fileName();
}

} // namespace

HostLanguage::HostLanguage()
{
    QCommandLineParser parser;
    parser.addOption(Option());
    // Other options are the program's; what is not understood here is not wrong.
    parser.parse(QCoreApplication::arguments());
    MultiLangMgr* languages = MultiLangMgr::GetInstance();
    languages->SetConfigPath(ChoicePath(languages->GetConfigPath()));
    languages->SetLangLocale();
    languages->SetLangLocale(parser.value(Option()));
    Select(languages->GetLangLocale());
}

HostLanguage::~HostLanguage()
{
    MultiLangMgr::Release();
}

void HostLanguage::Select(Language_Locale locale)
{
    gSetArgLang(locale == Language_Arabic);
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    const auto* found = std::find_if(
        rows, rows + count, [locale](const LangConstInfo& row) { return row.locale == locale; });
    // Before the texts change: windows ask for it as they do.
    if (found != rows + count)
        QLocale::setDefault(LocaleOf(*found));
    MultiLangMgr::GetInstance()->SetLangLocale(locale);
}

QLocale HostLanguage::LocaleOf(const LangConstInfo& info)
{
    return QLocale(info.langCode + QLatin1Char('_') + info.regionCode);
}

QCommandLineOption HostLanguage::Option()
{
    return {QStringLiteral("language"),
            QCoreApplication::translate("HostLanguage",
                                        "Language of the texts from now on, such as German."),
            QCoreApplication::translate("HostLanguage", "NAME")};
}

QString HostLanguage::Complaint(const QCommandLineParser& parser)
{
    if (!parser.isSet(Option()))
        return {};
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    QStringList names;
    for (int row = 0; row < count; ++row)
        names << rows[row].englishName;
    const QString name = parser.value(Option());
    if (names.contains(name))
        return {};
    return QCoreApplication::translate("HostLanguage", "There is no language %1. Known are: %2")
        .arg(name, names.join(QStringLiteral(", ")));
}
