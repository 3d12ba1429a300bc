// SPDX-License-Identifier: LGPL-2.1-or-later
// The import page; folders stand for devices.
#include "Host/Import/ImportPage.h"
#include "tests/support/HangingFiles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QtTest>

#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> s_hasNoBuffers{false};

} // namespace

// The library's buffers for copying come from here.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return s_hasNoBuffers && size >= 4096 ? nullptr : ::operator new[](size);
}

class TestImportPage : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString Path(const QString& name) const { return m_folder->filePath(name); }
    static QTreeWidgetItem* Item(const ImportPage& page, const char* name)
    {
        return page.findChild<QTreeWidget*>()->findItems(name, Qt::MatchRecursive).value(0);
    }
    static QPushButton* ImportButton(const ImportPage& page)
    {
        for (auto* button : page.findChildren<QPushButton*>()) {
            if (button->text() == "Import")
                return button;
        }
        qFatal("no such button");
    }
    void MarkAll(ImportPage& page) const
    {
        page.findChild<QLineEdit*>()->setText(Path("target"));
        page.findChild<QTreeWidget*>()->topLevelItem(0)->setCheckState(0, Qt::Checked);
        QTRY_VERIFY(ImportButton(page)->isEnabled());
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath("card"));
        QFile file(Path("card/clip.mov"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(64 << 20));
        qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(Path("card") + ":" + Path("phone")));
    }

    void listsADeviceThatComes()
    {
        ImportPage page;
        page.show();
        QTRY_VERIFY(Item(page, "clip.mov"));
        const auto* devices = page.findChild<QComboBox*>();
        QCOMPARE(devices->count(), 1);
        QVERIFY(QDir(m_folder->path()).mkpath("phone"));
        QTRY_COMPARE_WITH_TIMEOUT(devices->count(), 2, 20000);
        QCOMPARE(devices->currentText(), QString("card"));
        QVERIFY(Item(page, "clip.mov"));
    }

    void deletesNothingThatIsNotHere_data()
    {
        QTest::addColumn<bool>("hasNoBuffers");
        QTest::newRow("copied") << false;
        QTest::newRow("without memory for a buffer") << true;
    }
    void deletesNothingThatIsNotHere()
    {
        QFETCH(bool, hasNoBuffers);
        ImportPage page;
        page.show();
        QTRY_VERIFY(Item(page, "clip.mov"));
        MarkAll(page);
        std::make_unique<ImportPage>().reset(); // one that is never shown closes nothing
        page.findChild<QCheckBox*>()->setChecked(true);
        s_hasNoBuffers = hasNoBuffers;
        ImportButton(page)->click();
        QTRY_VERIFY_WITH_TIMEOUT(
            ImportButton(page)->isEnabled() || !QFile::exists(Path("card/clip.mov")), 30000);
        s_hasNoBuffers = false;
        QCOMPARE(QFile::exists(Path("card/clip.mov")), hasNoBuffers);
        QCOMPARE(QFile::exists(Path("target/clip.mov")), !hasNoBuffers);
    }

    void oneHasTheDevice()
    {
        auto first = std::make_unique<ImportPage>();
        first->show();
        QTRY_VERIFY(Item(*first, "clip.mov"));
        ImportPage second;
        second.show();
        const auto* notice = second.findChild<QStackedWidget*>()->findChild<QLabel*>();
        QTRY_VERIFY(notice->text().contains("Another window"));
        MarkAll(*first);
        ImportButton(*first)->click();
        QTRY_VERIFY(QFileInfo(Path("target/clip.mov")).size() == 64 << 20);
        first.reset();
        Q_EMIT second.findChild<QComboBox*>()->activated(0);
        QTRY_VERIFY(Item(second, "clip.mov"));
    }

    void closesWhileADeviceHangs_data()
    {
        QTest::addColumn<bool>("isImport");
        QTest::newRow("while it opens") << false;
        QTest::newRow("during an import") << true;
    }
    // Before the device answers again.
    void closesWhileADeviceHangs()
    {
        QFETCH(bool, isImport);
        auto page = std::make_unique<ImportPage>();
        if (isImport) {
            page->show();
            QTRY_VERIFY(Item(*page, "clip.mov"));
            MarkAll(*page);
        }
        HangingFiles::Start(Path("card").toStdString());
        if (isImport)
            ImportButton(*page)->click();
        else
            page->show();
        QTRY_VERIFY(HangingFiles::IsHanging());
        page.reset();
        QCOMPARE(HangingFiles::End(), 0);
    }
};

QTEST_MAIN(TestImportPage)
#include "tst_import_page.moc"
