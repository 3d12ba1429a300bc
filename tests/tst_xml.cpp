// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/XmlOperation.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "cannot be opened";
}

// Entities that each name the one before ten times.
QByteArray ManyLaughs()
{
    QString text = "<!DOCTYPE r [<!ENTITY a0 \"laugh\">";
    for (int i = 1; i < 20; ++i)
        text +=
            QString("<!ENTITY a%1 \"%2\">").arg(i).arg(QString("&a%1;").arg(i - 1).repeated(10));
    return (text + "]><r>&a19;</r>").toLatin1();
}

QByteArray LongEntity(int length, int count)
{
    const QByteArray text = QByteArray("&a;").repeated(count);
    return "<!DOCTYPE r [<!ENTITY a \"" + QByteArray(length, 'x') + "\">]><r>" + text + "</r>";
}

QByteArray Nested(int levels)
{
    return QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
}

} // namespace

class TestXml : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString Path(const QString& name) const { return m_folder.filePath(name); }

private slots:
    void createEditSave()
    {
        XmlOperation::CreateXmlFile(Path("new.xml"), "Root");
        QCOMPARE(Read(Path("new.xml")), kDeclaration + "<Root/>\n");
        Write(Path("old.xml"), "anything\r\n");
        XmlOperation::CreateXmlFile(Path("old.xml"), "Root");
        QCOMPARE(Read(Path("old.xml")), QString("anything\r\n"));

        QDomDocument document;
        QVERIFY(XmlOperation::OpenXmlFile(document, Path("new.xml"), QIODevice::ReadOnly));
        const QDomElement root = document.documentElement();
        QDomElement first = XmlOperation::AddXmlElement(document, root, "First", "");
        QCOMPARE(first.childNodes().size(), 1);
        QVERIFY(first.firstChild().isText());
        XmlOperation::AddXmlElement(document, first, "Deep", QString::fromUtf8("\u00fc<"));
        XmlOperation::AddXmlElement(document, root, "Deep", "later");
        QCOMPARE(XmlOperation::GetChildElement(root, "Deep").text(), QString::fromUtf8("\u00fc<"));
        QVERIFY(XmlOperation::GetChildElement(root, "Root").isNull());
        XmlOperation::SaveXmlContent2File(document, Path("new.xml"));
        // The declaration comes back from parsing with the other quotes.
        QCOMPARE(Read(Path("new.xml")).replace("'", "\""),
                 kDeclaration + QString::fromUtf8("<Root>\n    <First><Deep>\u00fc&lt;</Deep>\n"
                                                  "    </First>\n    <Deep>later</Deep>\n"
                                                  "</Root>\n"));
        XmlOperation::SaveXmlContent2File(document, Path("missing/new.xml"));
        QVERIFY(!QFile::exists(Path("missing")));
    }

    void setText()
    {
        QDomDocument document;
        QDomElement element = document.createElement("E");
        XmlOperation::SetElemmentText(document, element, "one");
        XmlOperation::SetElemmentText(document, element, "two");
        QCOMPARE(element.childNodes().size(), 1);
        QCOMPARE(element.text(), QString("two"));
        // The walk skips what follows a text that it removes.
        element.appendChild(document.createTextNode("-three"));
        element.appendChild(document.createElement("Kept"));
        XmlOperation::SetElemmentText(document, element, "-four");
        QCOMPARE(element.text(), QString("-three-four"));
        QVERIFY(!element.firstChildElement("Kept").isNull());
    }

    void open()
    {
        const auto check = [this](const QByteArray& content, int characters) { // -1 when refused
            Write(Path("file.xml"), content);
            QDomDocument document("old");
            const bool isGood = characters >= 0;
            QCOMPARE(XmlOperation::OpenXmlFile(document, Path("file.xml"), QIODevice::ReadOnly),
                     isGood);
            QCOMPARE(document.isNull(), !isGood);
            if (isGood)
                QCOMPARE(document.documentElement().text().size(), characters);
        };
        check(QByteArray(""), -1);
        check(QByteArray("<a><b></a>"), -1);
        check(QByteArray("\x00\xff\xfe\x01", 4), -1);
        check(QByteArray("<a:b>x</a:b>"), 1);
        check(Nested(1000), 0);
        check(Nested(1001), -1);
        check(LongEntity(1000, 10), 10000);
        check(ManyLaughs(), -1);
        check(LongEntity(1028, 1), -1);
        check(LongEntity(1000, 50000), -1);
        check("<a>" + QByteArray(100 << 20, 'x') + "</a>", 100 << 20);
    }

    void openFails()
    {
        QDomDocument document;
        document.setContent(QString("<kept/>"));
        for (const QString& path : {Path("missing"), m_folder.path(), QString()})
            QVERIFY(!XmlOperation::OpenXmlFile(document, path, QIODevice::ReadOnly));
        QCOMPARE(document.documentElement().tagName(), QString("kept"));
        QVERIFY(!XmlOperation::OpenXmlFile(document, Path("new"), QIODevice::WriteOnly));
    }
};

QTEST_GUILESS_MAIN(TestXml)

#include "tst_xml.moc"
