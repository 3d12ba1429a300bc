// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "Host/Gallery/GalleryWindow.h"

#include <QComboBox>
#include <QCommandLineParser>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

class tst_GalleryLanguages : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// All that the window's widgets say, each with its class, in the order of their making.
    static QStringList Texts(const QWidget& window)
    {
        QStringList texts;
        QList<const QWidget*> widgets{&window};
        for (const QWidget* child : window.findChildren<QWidget*>())
            widgets << child;
        for (const QWidget* widget : widgets) {
            const auto note = [&](const QString& text) {
                if (!text.isEmpty())
                    texts << QString("%1: %2").arg(widget->metaObject()->className(), text);
            };
            for (const char* name : {"text", "title", "toolTip", "accessibleName", "windowTitle"})
                note(widget->property(name).toString());
            const auto* view = qobject_cast<const QAbstractItemView*>(widget);
            const QAbstractItemModel* model = view ? view->model() : nullptr;
            for (int row = 0; model && row < model->rowCount(); ++row)
                note(model->index(row, 0).data().toString());
            if (const auto* tree = qobject_cast<const QTreeWidget*>(widget)) {
                for (int column = 0; column < tree->columnCount(); ++column)
                    note(tree->headerItem()->text(column));
            }
        }
        return texts;
    }
    /// What the toolkit itself says: of \a dialog's buttons, in a field's menu, on a command line.
    static QStringList ToolkitTexts(const QDialogButtonBox& dialog)
    {
        QStringList texts{QCommandLineParser().helpText()};
        for (const QAbstractButton* button : dialog.buttons())
            texts << button->text();
        QLineEdit field("text");
        const QScopedPointer<QMenu> menu(field.createStandardContextMenu());
        for (const QAction* action : menu->actions())
            texts << action->text().section('\t', 0, 0);
        texts.removeAll(QString()); // separators
        return texts;
    }

private Q_SLOTS:
    void initTestCase()
    {
        MultiLangMgr::GetInstance()->SetConfigPath(m_folder.filePath("Multilang.ini"));
    }
    void cleanupTestCase() { MultiLangMgr::Release(); }

    void openWindowFollows()
    {
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        GalleryWindow window;
        window.show();
        const QStringList english = Texts(window);
        for (const Language_Locale language : {Language_German, Language_Arabic}) {
            languages->SetLangLocale(language);
            QCoreApplication::processEvents();
            QCOMPARE(Texts(window), Texts(GalleryWindow())); // one that knows no other language
        }
        // No word is the same in Arabic, but for paths, names of the library's parts and of fonts.
        const QStringList fonts{languages->GetCurrentFontFamily(),
                                QFontInfo(window.font()).family()};
        static const QRegularExpression own("^(QLineEdit|QComboBoxListView): |: CommonLib_");
        static const QRegularExpression words(": .*[a-z]{2}");
        for (const QString& text : Texts(window)) {
            if (english.contains(text) && text.contains(words) && !text.contains(own))
                QVERIFY2(fonts.contains(text.section(": ", 1)), qPrintable(text));
        }
    }

    void toolkitFollows_data()
    {
        QTest::addColumn<int>("language");
        int count = 0;
        const LangConstInfo* info = GetGlobalLangConstInfos(count);
        for (const LangConstInfo* row = info; row < info + count; ++row) {
            if (row->locale != Language_English)
                QTest::newRow(qPrintable(row->englishName)) << int(row->locale);
        }
    }

    void toolkitFollows()
    {
        QFETCH(int, language);
        if (!HAS_QT_TRANSLATIONS)
            QSKIP("built without Qt's translations");
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        QDialogButtonBox dialog(QDialogButtonBox::Save | QDialogButtonBox::Discard |
                                QDialogButtonBox::Cancel);
        dialog.show();
        const QStringList english = ToolkitTexts(dialog);
        languages->SetLangLocale(Language_Locale(language));
        QCoreApplication::processEvents();
        const QStringList texts = ToolkitTexts(dialog);
        QCOMPARE(texts.size(), english.size());
        for (const QString& text : texts)
            QVERIFY2(!english.contains(text), qPrintable(text));
    }
};

QTEST_MAIN(tst_GalleryLanguages)
#include "tst_gallery_languages.moc"
