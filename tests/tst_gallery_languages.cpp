// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "Host/Gallery/GalleryWindow.h"
#include "Host/HostLanguage.h"

#include <QComboBox>
#include <QCommandLineParser>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

constexpr qint64 kLargeSize = qint64(2) << 30;

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
    /// What Qt itself says: of \a dialog's buttons, in a field's menu, on a command line.
    static QStringList QtTexts(const QDialogButtonBox& dialog)
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

    /// A folder stands for a device; its second file is so large that the import of it is
    /// cancelled.
    void MakeCard() const
    {
        QVERIFY(QDir(m_folder.path()).mkpath("card"));
        QFile smallFile(m_folder.filePath("card/a.mov"));
        QVERIFY(smallFile.open(QIODevice::WriteOnly));
        QCOMPARE(smallFile.write("clip"), 4);
        QFile sparse(Large());
        QVERIFY(sparse.open(QIODevice::WriteOnly));
        QVERIFY(sparse.resize(kLargeSize));
        qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(m_folder.filePath("card")));
        qputenv("HOME", QFile::encodeName(m_folder.path())); // where the page imports to
    }
    QString Large() const { return m_folder.filePath("card/b.mov"); }
    /// The list of files on the page; null when it does not come.
    static const QTreeWidget* ShowImportPage(GalleryWindow& window)
    {
        if (!window.ShowPage("import"))
            return nullptr;
        window.show();
        const auto* tree = window.findChild<QTreeWidget*>();
        const auto isListed = [tree] {
            return Item(tree, "a.mov") != nullptr && Item(tree, "b.mov") != nullptr;
        };
        return QTest::qWaitFor(isListed) ? tree : nullptr;
    }
    static QTreeWidgetItem* Item(const QTreeWidget* tree, const char* name)
    {
        return tree->findItems(name, Qt::MatchRecursive).value(0);
    }
    static QPushButton* Button(const GalleryWindow& window, const char* text)
    {
        for (auto* found : window.findChildren<QPushButton*>()) {
            if (found->text() == QCoreApplication::translate("ImportPage", text))
                return found;
        }
        qFatal("no such button");
    }

private Q_SLOTS:
    void initTestCase()
    {
        MultiLangMgr::GetInstance()->SetConfigPath(m_folder.filePath("Multilang.ini"));
    }
    void cleanupTestCase() { MultiLangMgr::Release(); }

    void openWindowFollows_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("German") << int(Language_German);
        QTest::newRow("Arabic") << int(Language_Arabic);
    }
    void openWindowFollows()
    {
        QFETCH(int, language);
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        GalleryWindow window;
        window.show();
        languages->SetLangLocale(Language_Locale(language));
        QCoreApplication::processEvents();
        QCOMPARE(Texts(window), Texts(GalleryWindow())); // one that knows no other language
    }

    // No word is the same in Arabic, but for paths, names of the library's parts and of fonts.
    void noEnglishIsLeft()
    {
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        GalleryWindow window;
        window.show();
        const QStringList english = Texts(window);
        languages->SetLangLocale(Language_Arabic);
        QCoreApplication::processEvents();
        const QStringList fonts{languages->GetCurrentFontFamily(),
                                QFontInfo(window.font()).family()};
        static const QRegularExpression own("^(QLineEdit|QComboBoxListView): |: CommonLib_");
        static const QRegularExpression words(": .*[a-z]{2}");
        for (const QString& text : Texts(window)) {
            if (english.contains(text) && text.contains(words) && !text.contains(own))
                QVERIFY2(fonts.contains(text.section(": ", 1)), qPrintable(text));
        }
    }

#ifndef Q_OS_WIN // whose own devices the page lists
    void importListFollows_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("Swedish") << int(Language_Swedish);
        QTest::newRow("German") << int(Language_German);
    }
    void importListFollows()
    {
        QFETCH(int, language);
        HostLanguage::Select(Language_English);
        MakeCard();
        GalleryWindow window;
        const QTreeWidget* tree = ShowImportPage(window);
        QVERIFY(tree);
        HostLanguage::Select(Language_Locale(language));
        QCoreApplication::processEvents();
        const QLocale locale =
            HostLanguage::LocaleOf(MultiLangMgr::GetInstance()->GetLangConstInfo());
        const QTreeWidgetItem* item = Item(tree, "b.mov");
        QCOMPARE(item->text(1), locale.formattedDataSize(kLargeSize, 1));
        // A device reports whole seconds, rounded its way.
        const QDateTime modified = QFileInfo(Large()).lastModified();
        const QStringList times{locale.toString(modified, QLocale::ShortFormat),
                                locale.toString(modified.addSecs(1), QLocale::ShortFormat)};
        QVERIFY2(times.contains(item->text(2)), qPrintable(item->text(2)));
    }

    void cancelledImport()
    {
        HostLanguage::Select(Language_German);
        MakeCard();
        GalleryWindow window;
        const QTreeWidget* tree = ShowImportPage(window);
        QVERIFY(tree);
        tree->topLevelItem(0)->setCheckState(0, Qt::Checked);
        QTRY_VERIFY(Button(window, "Import")->isEnabled());
        const QSize before = window.size();
        QSize during;
        auto* progress = window.findChild<QProgressBar*>();
        connect(progress, &QProgressBar::valueChanged, this, [&](int value) {
            during = window.size();
            if (value > 0)
                Button(window, "Cancel")->click();
        });
        Button(window, "Import")->click();
        QTRY_VERIFY(during.isValid() && progress->isHidden());
        QCoreApplication::processEvents();
        QCOMPARE(during, before);
        QCOMPARE(window.size(), before);
        // The device has its own order.
        const QDir target(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
        QCOMPARE(Item(tree, "a.mov")->checkState(0),
                 target.exists("a.mov") ? Qt::Unchecked : Qt::Checked);
        QCOMPARE(Item(tree, "b.mov")->checkState(0), Qt::Checked);
        QVERIFY(Button(window, "Import")->isEnabled());
    }
#endif

    void qtFollows_data()
    {
        QTest::addColumn<int>("language");
        int count = 0;
        const LangConstInfo* info = GetGlobalLangConstInfos(count);
        for (const LangConstInfo* row = info; row < info + count; ++row) {
            if (row->locale != Language_English)
                QTest::newRow(qPrintable(row->englishName)) << int(row->locale);
        }
    }

    void qtFollows()
    {
        QFETCH(int, language);
        if (!HAS_QT_TRANSLATIONS)
            QSKIP("built without Qt's translations");
        MultiLangMgr* languages = MultiLangMgr::GetInstance();
        languages->SetLangLocale(Language_English);
        QDialogButtonBox dialog(QDialogButtonBox::Save | QDialogButtonBox::Discard |
                                QDialogButtonBox::Cancel);
        dialog.show();
        const QStringList english = QtTexts(dialog);
        languages->SetLangLocale(Language_Locale(language));
        QCoreApplication::processEvents();
        const QStringList texts = QtTexts(dialog);
        QCOMPARE(texts.size(), english.size());
        for (const QString& text : texts)
            QVERIFY2(!english.contains(text), qPrintable(text));
    }
};

QTEST_MAIN(tst_GalleryLanguages)
#include "tst_gallery_languages.moc"
