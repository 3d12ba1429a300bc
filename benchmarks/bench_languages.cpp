// SPDX-License-Identifier: LGPL-2.1-or-later
// Start of the language manager and a switch of language, with seventeen languages of 2,000 texts
// each, beside bare translators that load the same files; medians of rounds in one run.
#include "CommonLib/MultiLangMgr.h"
#include "benchmarks/BenchTranslations.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVector>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int kTexts = 2000;
constexpr int kRounds = 31;

QStringList WriteAll(const QString& folder)
{
    QStringList files;
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    for (int i = 0; i < count; ++i) {
        files << folder + rows[i].DirName() + "/bench.qm";
        if (!WriteTranslations(files.last(), rows[i].englishName + ' ', kTexts))
            return {};
    }
    return files;
}

using Translators = std::vector<std::unique_ptr<QTranslator>>;

Translators LoadBare(const QStringList& files)
{
    Translators translators;
    for (const QString& file : files) {
        translators.push_back(std::make_unique<QTranslator>());
        translators.back()->load(file);
    }
    return translators;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString lang = QCoreApplication::applicationDirPath() + "/Lang/";
    const QStringList files = WriteAll(lang);
    if (files.isEmpty()) {
        std::fputs("cannot write the translations\n", stderr);
        return 1;
    }
    std::vector<double> start;
    std::vector<double> bareStart;
    std::vector<double> change;
    Translators bare;
    for (int round = 0; round < kRounds; ++round) {
        MultiLangMgr::Release();
        start.push_back(Seconds([] { MultiLangMgr::GetInstance(); }));
        bare.clear();
        bareStart.push_back(Seconds([&] { bare = LoadBare(files); }));
    }

    MultiLangMgr* manager = MultiLangMgr::GetInstance();
    manager->SetConfigPath(folder.filePath("Multilang.ini"));
    manager->SetLangLocale(Language_English);
    // From font to font and back, the dearest of all switches.
    for (int round = 0; round < kRounds; ++round) {
        const bool japanese = round % 2 == 0;
        change.push_back(Seconds(
            [&] { manager->SetLangLocale(japanese ? Language_Japanese : Language_English); }));
        if (QCoreApplication::translate("Test", "text 7") !=
            (japanese ? "Japanese 7" : "English 7")) {
            std::fputs("the language has not changed\n", stderr);
            return 1;
        }
    }
    MultiLangMgr::Release();
    const Peer peer = Bare("loading the files", Median(bareStart));
    Report("start with 17 languages of 2,000 texts", Median(start), peer);
    Report("another language, its font and the ini file", Median(change), peer);
    return 0;
}
