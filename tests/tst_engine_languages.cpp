// SPDX-License-Identifier: LGPL-2.1-or-later
// What the open engine calls things for people: whatever its interfaces list is translated.
#include "CommonLib/MultiLangMgr.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEReasons.h"
#include "tests/support/EngineFixture.h"

#include <QTranslator>

class tst_EngineLanguages : public QObject, private EngineFixture
{
    Q_OBJECT

    /// What \a call gives for the indexes from 0 on, until it fails.
    template <typename Call>
    static QStringList AllOf(Call call)
    {
        QStringList texts;
        for (int index = 0;; ++index) {
            const QString text = TextOf(
                [&](wchar_t* buffer, int capacity) { return call(index, buffer, capacity); });
            if (text.isNull())
                return texts;
            texts << text;
        }
    }

    static QStringList ParameterTitles(const Node& node)
    {
        const auto parameters = node.query<INLEParameters>();
        QStringList titles = AllOf([&](int index, wchar_t* title, int capacity) {
            return parameters->GetParameterTitle(index, title, capacity);
        });
        const int count = titles.size();
        for (int index = 0; index < count; ++index) {
            titles << AllOf([&](int choice, wchar_t* title, int capacity) {
                return parameters->GetChoiceTitle(index, choice, title, capacity);
            });
        }
        return titles;
    }

    /// Everything of one NLECatalogKind.
    template <typename Create>
    static QStringList CatalogTitles(int kind, Create create)
    {
        const auto catalogue = Nodes().query<INLEEffectCatalog>();
        QStringList titles = AllOf([&](int index, wchar_t* title, int capacity) {
            return catalogue->GetTitle(kind, index, title, capacity);
        });
        const QStringList names = AllOf([&](int index, wchar_t* name, int capacity) {
            return catalogue->GetName(kind, index, name, capacity);
        });
        for (const QString& name : names) {
            Node node;
            (Nodes().get()->*create)(name.toStdWString().c_str(), node.put());
            titles << ParameterTitles(node);
        }
        return titles;
    }

    /// Containers, codecs and presets.
    QStringList EncodeTitles() const
    {
        const auto catalogue = provider->CreateMediaEncoder().query<INLEEncodeCatalog>();
        QStringList titles = AllOf([&](int index, wchar_t* title, int capacity) {
            return catalogue->GetPresetTitle(index, title, capacity);
        });
        NLEContainerInfo container = {};
        for (int at = 0; catalogue->GetContainer(at, &container) == S_OK; ++at) {
            titles << TextOf([&](wchar_t* title, int capacity) {
                return catalogue->GetContainerTitle(at, title, capacity);
            });
            for (const int type : {NLEStream_Video, NLEStream_Audio}) {
                titles << AllOf([&](int index, wchar_t* title, int capacity) {
                    return catalogue->GetCodecTitle(container.name, type, index, title, capacity);
                });
            }
        }
        return titles;
    }

    QStringList Titles() const
    {
        const auto factory = Factory();
        NLEComPtr<INLEReasons> reasons;
        factory->GetReasons(reasons.put());
        const auto remarks = provider->CreateDocumentSerialize().query<INLEDocumentReport>();
        Node title;
        Nodes()->CreateTitle(L"", title.put());
        return CatalogTitles(NLECatalog_Effect, &INLETimelineFactory::CreateEffect) +
               CatalogTitles(NLECatalog_Transition, &INLETimelineFactory::CreateTransition) +
               CatalogTitles(NLECatalog_AudioFilter, &INLETimelineFactory::CreateAudioFilter) +
               ParameterTitles(title) + AllOf([&](int reason, wchar_t* text, int capacity) {
                   return reasons->GetTitle(reason, text, capacity);
               }) +
               AllOf([&](int index, wchar_t* text, int capacity) {
                   return remarks->GetRemarkTitle(index + NLERemark_Effect, text, capacity);
               });
    }

private slots:
    void initTestCase()
    {
        MultiLangMgr::GetInstance()->SetConfigPath(folder.filePath("Multilang.ini"));
    }
    void cleanupTestCase() { MultiLangMgr::Release(); }

    void everyTitleIsTranslated_data()
    {
        QTest::addColumn<int>("language");
        int count = 0;
        const LangConstInfo* rows = GetGlobalLangConstInfos(count);
        for (const LangConstInfo* row = rows; row < rows + count; ++row)
            QTest::newRow(qPrintable(row->englishName)) << int(row->locale);
    }
    void everyTitleIsTranslated()
    {
        QFETCH(int, language);
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        const int names = Titles().size();
        const QStringList english = Titles() + EncodeTitles();
        languages->SetLangLocale(Language_Locale(language));
        const QStringList titles = Titles() + EncodeTitles();
        QVERIFY(names > 0 && names < titles.size());
        QCOMPARE(titles.size(), english.size());
        const LangConstInfo info = languages->GetLangConstInfo();
        QTranslator catalogue;
        QVERIFY(catalogue.load(QCoreApplication::applicationDirPath() + "/Lang/" + info.DirName() +
                               "/NLECore.qm"));
        const bool isLatin = QLocale(info.langCode).script() == QLocale::LatinScript;
        // "MP4" and "Apple ProRes" are the same in all languages.
        static const QRegularExpression words("\\b[a-z]{4}");
        for (int i = 0; i < titles.size(); ++i) {
            if (i >= names && !english[i].contains(words))
                continue;
            const QString wanted = catalogue.translate("NLECore", qPrintable(english[i]));
            QVERIFY2(!wanted.isEmpty(), qPrintable(english[i]));
            QCOMPARE(titles[i], wanted);
            QVERIFY2(isLatin || titles[i] != english[i], qPrintable(english[i]));
        }
    }
};

QTEST_MAIN(tst_EngineLanguages)
#include "tst_engine_languages.moc"
