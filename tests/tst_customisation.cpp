// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CBSUrlReader.h"
#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QtTest>

#include <vector>

using ReadFunction = int (*)(const wchar_t*, const wchar_t*, wchar_t*, int, int, int);

class tst_Customisation : public QObject
{
    Q_OBJECT

private:
    const QString m_module = QCoreApplication::applicationDirPath() + "/CVUtilities.dll";
    const QString m_file = QCoreApplication::applicationDirPath() + "/Customization.xml";

    static QString Values(const QString& inner)
    {
        return "<Customization><Group name='ENG'>" + inner + "</Group></Customization>";
    }
    bool Install(const QString& module) const
    {
        return module.isEmpty() || QFile::copy(module, m_module);
    }
    bool Write(const QByteArray& content) const { return SetContents(m_file, content); }

private Q_SLOTS:
    void init() { cleanup(); }
    void cleanup()
    {
        QVERIFY(!QFile::exists(m_module) || QFile::remove(m_module));
        QVERIFY(!QFile::exists(m_file) || QFile::remove(m_file) || QDir().rmdir(m_file));
    }

    void values_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const QString& text, const QString& expected) {
            QTest::newRow(name) << text.toUtf8() << expected;
        };
        const QString pid("<Value name='PID'>%1</Value>");
        row("plain", Values(pid.arg("a&amp;b")), "a&b");
        row("white space at its ends", Values(pid.arg("\n  a  b\t")), "a  b");
        row("another group and name first",
            "<Customization><Group name='DEU'><Value name='PID'>d</Value></Group><Group "
            "name='ENG'><Value name='Home'>h</Value><Value name='PID'>e</Value></Group>"
            "</Customization>",
            "e");
        row("the last one holds", Values(pid.arg(1) + pid.arg(2)), "2");
        row("unknown elements", Values("<More><Value name='PID'>x</Value></More>" + pid.arg(3)),
            "3");
        row("255 characters", Values(pid.arg(QString(255, 'v'))), QString(255, 'v'));
        row("256 characters", Values(pid.arg(QString(256, 'v'))), "");
        row("beyond the basic plane", Values(pid.arg(QString::fromUtf8("\U0001F3AC"))),
            QString::fromUtf8("\U0001F3AC"));
        row("truncated behind the value", Values(pid.arg(4)).chopped(5), "");
        row("text behind the root", Values(pid.arg(5)) + "more", "");
        row("an element within a value", Values(pid.arg("6<b/>")), "");
        row("another root", QString(Values(pid.arg(7))).replace("Customization", "Settings"), "");
        QString bomb("<!DOCTYPE x [<!ENTITY e0 'eeeeeeeeee'>");
        for (int i = 0; i < 12; ++i)
            bomb += QString("<!ENTITY e%1 '&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;'>")
                        .arg(i + 1)
                        .arg(i);
        row("entities without end", bomb + "]>" + Values(pid.arg("&e12;")), "");
        row("nested deeply", Values(QString("<n>").repeated(400000)), "");
        const QString wide = QChar(QChar::ByteOrderMark) + Values(pid.arg("8"));
        QTest::newRow("UTF-16") << QByteArray(reinterpret_cast<const char*>(wide.utf16()),
                                              int(wide.size()) * 2)
                                << "8";
    }

    void values()
    {
        QFETCH(QByteArray, content);
        QVERIFY(Install(REAL_UTILITIES));
        QVERIFY(Write(content));
        CBSUrlReader reader(nullptr);
        QTEST(reader.ReadCustomerUrl("ENG", "PID"), "expected");
        QCOMPARE(reader.ReadCustomerUrl("PID", "ENG"), QString());
    }

    void fileIsTooLarge()
    {
        QVERIFY(Install(REAL_UTILITIES));
        // Well-formed all through, so that only its size speaks against it.
        const QByteArray whole = Values("<Value name='PID'>x</Value>").toUtf8();
        QVERIFY(Write(whole + QByteArray(100 * 1024 * 1024 - whole.size(), ' ')));
        QCOMPARE(CBSUrlReader(nullptr).ReadCustomerUrl("ENG", "PID"), QString());
    }

    void fileIsAFolder()
    {
        QVERIFY(Install(REAL_UTILITIES));
        QVERIFY(QDir().mkdir(m_file));
        QCOMPARE(CBSUrlReader(nullptr).ReadCustomerUrl("ENG", "PID"), QString());
    }

    void bufferIsNeverOverrun_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("capacity"); // of eight characters that are there
        QTest::addColumn<bool>("isRead");
        for (int capacity = -1; capacity < 8; ++capacity)
            QTest::addRow("room for %d, five needed", capacity)
                << "four" << capacity << (capacity >= 5);
        QTest::newRow("room for the end of an empty value") << "" << 1 << true;
    }
    void bufferIsNeverOverrun()
    {
        QFETCH(QString, value);
        QFETCH(int, capacity);
        QFETCH(bool, isRead);
        constexpr int size = 8;
        QVERIFY(Install(REAL_UTILITIES));
        QVERIFY(Write(Values(QString("<Value name='PID'>%1</Value>").arg(value)).toUtf8()));
        const CBSUrlReader reader(nullptr); // loads the file
        const auto read =
            reinterpret_cast<ReadFunction>(QLibrary::resolve(m_module, "ReadCustomizeInfoW"));
        QVERIFY(read);
        std::vector<wchar_t> buffer(size, L'#');
        QCOMPARE(read(L"PID", L"ENG", buffer.data(), capacity, 0, 0) != 0, isRead);
        const QString written = isRead ? value + QChar(0) : QString();
        QCOMPARE(QString::fromWCharArray(buffer.data(), size), written.leftJustified(size, '#'));
    }

    void modules_data()
    {
        const QDir plugins(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms");
        const QString other = plugins.entryList({"*qminimal*"}, QDir::Files).value(0);
        QTest::addColumn<QString>("module");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("group and capacity") << SCRIPTED_UTILITIES << "PID"
                                            << "ENG 256";
        QTest::newRow("file that is read") << SCRIPTED_UTILITIES << "file" << m_file;
        QTest::newRow("success without a value") << SCRIPTED_UTILITIES << "nothing"
                                                 << "0";
        QTest::newRow("value without end")
            << SCRIPTED_UTILITIES << "all characters, no end" << QString(256, 'x');
        QTest::newRow("failure") << SCRIPTED_UTILITIES << "failure"
                                 << "";
        if (!other.isEmpty())
            QTest::newRow("another library") << plugins.filePath(other) << "PID"
                                             << "";
        QTest::newRow("no module") << ""
                                   << "PID"
                                   << "";
        QTest::newRow("no library") << m_file << "PID"
                                    << "";
    }
    void modules()
    {
        QFETCH(QString, module);
        QFETCH(QString, name);
        QVERIFY(Write("<Customization/>"));
        QVERIFY(Install(module));
        QTEST(CBSUrlReader(nullptr).ReadCustomerUrl("ENG", name), "expected");
        QVERIFY(!QLibrary(m_module).isLoaded());
    }
};

QTEST_GUILESS_MAIN(tst_Customisation)
#include "tst_customisation.moc"
