// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/XmlOperation.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

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

// Text of pieces that are hard to write; adds what of it XML can hold.
QString AnyText(QRandomGenerator& random, QStringList& kept)
{
    static const QStringList legal{"a",  "<",  "&",      "\"",     "'",      "]]>",
                                   "]",  ">",  "--",     "?>",     "-",      " ",
                                   "\t", "\n", "\r",     "\u00a0", "_",      "amp",
                                   "#1", ";",  "\u00e4", "\u20ac", "\uFFFD", "\U0001F600"};
    static const QList<ushort> illegal{0, 1, 0xB, 0x1B, 0x1F, 0xD800, 0xDC00, 0xFFFE, 0xFFFF};
    QString text;
    kept += QString();
    for (int left = random.bounded(6); left > 0; --left) {
        if (random.bounded(3) == 0)
            text += QChar(illegal.at(random.bounded(illegal.size())));
        // What follows keeps halves of pairs apart.
        const QString& piece = legal.at(random.bounded(legal.size()));
        text += piece;
        kept.last() += piece;
    }
    return text;
}

QString AnyText(QRandomGenerator& random)
{
    QStringList kept;
    return AnyText(random, kept);
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
        check(LongEntity(1000, 50000), -1);
        check(LongEntity(5000, 1), 5000);
        check(LongEntity(8, 100000), 800000);
        check("<?xml version='1.1'?><r>1.1</r>", 3);
        check("<r>&#x1F600;</r>", 2);
        check("<r>\n <![CDATA[ ]]>&#x20;\n<b/> </r>", 3); // the rest is layout
        check("<a>" + QByteArray(100 << 20, 'x') + "</a>", 100 << 20);
    }

    void savesReadable_data()
    {
        QTest::addColumn<QString>("declaration");
        QTest::newRow("UTF-8") << "version='1.0' encoding='UTF-8'";
        QTest::newRow("UTF-16") << "version='1.0' encoding='UTF-16' standalone='yes'";
        QTest::newRow("encoding of few characters") << "version='1.0' encoding='ISO-8859-1'";
        QTest::newRow("encoding that cannot be read") << "version='1.0' encoding='UTF-32'";
        QTest::newRow("unknown encoding") << "version='1.0' encoding='none'";
        QTest::newRow("later version") << "version='1.1'";
        QTest::newRow("no declaration at all") << "?>";
    }
    void savesReadable()
    {
        QFETCH(QString, declaration);
        QRandomGenerator random(1);
        for (int i = 0; i < 100; ++i) {
            QDomDocument document;
            document.appendChild(document.createProcessingInstruction("xml", declaration));
            QDomElement root = document.createElement("Root");
            document.appendChild(root);
            QStringList kept;
            const auto text = [&] { return AnyText(random, kept); };
            root.setAttribute("a", text());
            root.appendChild(document.createTextNode(text()));
            root.appendChild(document.createComment(AnyText(random)));
            root.appendChild(document.createTextNode(text()));
            root.appendChild(document.createTextNode(text()));
            root.appendChild(document.createProcessingInstruction("p", AnyText(random)));
            root.appendChild(document.createCDATASection(text()));
            root.appendChild(document.createElement('1' + AnyText(random)));
            root.appendChild(document.createTextNode(text()));
            root.appendChild(document.createEntityReference('x' + AnyText(random)));
            XmlOperation::SaveXmlContent2File(document, Path("any.xml"));
            QDomDocument saved;
            QVERIFY(XmlOperation::OpenXmlFile(saved, Path("any.xml"), QIODevice::ReadOnly));
            QCOMPARE(saved.documentElement().attribute("a"), kept.takeFirst());
            QCOMPARE(saved.documentElement().text(), kept.join(""));
            QVERIFY(saved.documentElement().lastChildElement().tagName().startsWith("_1"));
        }
    }

    void savesNoDeeperThanOpens()
    {
        QDomDocument document;
        const QDomElement root = document.createElement("a");
        QDomNode parent = document.appendChild(root);
        for (int level = 0; level < 1000; ++level)
            parent = parent.appendChild(document.createElement("a"));
        XmlOperation::SaveXmlContent2File(document, Path("deep.xml"));
        QVERIFY(XmlOperation::OpenXmlFile(document, Path("deep.xml"), QIODevice::ReadOnly));
        QCOMPARE(document.elementsByTagName("a").size(), 1000);
    }

    void openFails()
    {
        QDomDocument document;
        document.setContent(QString("<kept/>"));
        QStringList none{Path("missing"), m_folder.path(), QString()};
#ifdef Q_OS_LINUX
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
        XmlOperation::SaveXmlContent2File(document, Path("pipe"));
        none << Path("pipe") << "/dev/zero";
#endif
        for (const QString& path : none)
            QVERIFY(!XmlOperation::OpenXmlFile(document, path, QIODevice::ReadOnly));
        QCOMPARE(document.documentElement().tagName(), QString("kept"));
        QVERIFY(!XmlOperation::OpenXmlFile(document, Path("new"), QIODevice::WriteOnly));
    }
};

QTEST_GUILESS_MAIN(TestXml)

#include "tst_xml.moc"
