// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/AnyQt.h"
#include "CommonLib/XmlOperation.h"
#include "tests/support/Files.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

namespace {

const QString kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr int kMostLevels = 1000;

void Write(const QString& path, const QByteArray& content)
{
    QVERIFY(SetContents(path, content));
}

QString Read(const QString& path)
{
    return QFileInfo::exists(path) ? QString::fromUtf8(Contents(path)) : "not there";
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

QByteArray WithEntity(int length, const QByteArray& content)
{
    return "<!DOCTYPE r [<!ENTITY a \"" + QByteArray(length, 'x') + "\"><!ENTITY b 'y'>]><r>" +
           content + "</r>";
}

QByteArray LongEntity(int length, int count)
{
    return WithEntity(length, QByteArray("&a;").repeated(count));
}

// As UTF-16 with its mark, so that every character takes two bytes.
QByteArray Wide(const QByteArray& content)
{
    return AnyQt::TextCodec::Named("UTF-16")->Encode(QChar(QChar::ByteOrderMark) +
                                                     QString::fromLatin1(content));
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

// Puts its root's attribute "a" and the pieces of its root's text into `kept`.
QDomDocument AnyDocument(const QString& declaration, QRandomGenerator& random, QStringList& kept)
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction("xml", declaration));
    QDomElement root = document.createElement("Root");
    document.appendChild(root);
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
    return document;
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
    static QDomElement Root(QDomDocument& document)
    {
        return document.appendChild(document.createElement("Root")).toElement();
    }

private slots:
    void initTestCase()
    {
#ifdef Q_OS_LINUX
        QCOMPARE(::mkfifo(qPrintable(Path("pipe")), 0600), 0);
#endif
    }

    void createsFileUnlessItIsThere()
    {
        XmlOperation::CreateXmlFile(Path("new.xml"), "Root");
        QCOMPARE(Read(Path("new.xml")), kDeclaration + "<Root/>\n");
        Write(Path("old.xml"), "anything\r\n");
        XmlOperation::CreateXmlFile(Path("old.xml"), "Root");
        QCOMPARE(Read(Path("old.xml")), QString("anything\r\n"));
    }

    void addedElementHasATextEvenWhenEmpty()
    {
        QDomDocument document;
        const QDomElement element = XmlOperation::AddXmlElement(document, Root(document), "E", "");
        QCOMPARE(element.childNodes().size(), 1);
        QVERIFY(element.firstChild().isText());
    }

    void childElementIsTheFirstBelow()
    {
        QDomDocument document;
        const QDomElement root = Root(document);
        const QDomElement first = XmlOperation::AddXmlElement(document, root, "First", "");
        XmlOperation::AddXmlElement(document, first, "Deep", "sooner");
        XmlOperation::AddXmlElement(document, root, "Deep", "later");
        QCOMPARE(XmlOperation::GetChildElement(root, "Deep").text(), QString("sooner"));
        QVERIFY(XmlOperation::GetChildElement(root, "Root").isNull());
    }

    void savesIndented()
    {
        XmlOperation::CreateXmlFile(Path("edited.xml"), "Root");
        QDomDocument document;
        QVERIFY(XmlOperation::OpenXmlFile(document, Path("edited.xml"), QIODevice::ReadOnly));
        const QDomElement root = document.documentElement();
        const QDomElement first = XmlOperation::AddXmlElement(document, root, "First", "");
        XmlOperation::AddXmlElement(document, first, "Deep", QString::fromUtf8("\u00fc<"));
        XmlOperation::AddXmlElement(document, root, "Deep", "later");
        XmlOperation::SaveXmlContent2File(document, Path("edited.xml"));
        // The declaration comes back from parsing with the other quotes.
        QCOMPARE(Read(Path("edited.xml")).replace("'", "\""),
                 kDeclaration + QString::fromUtf8("<Root>\n    <First><Deep>\u00fc&lt;</Deep>\n"
                                                  "    </First>\n    <Deep>later</Deep>\n"
                                                  "</Root>\n"));
    }

    void savesNothingIntoAMissingFolder()
    {
        QDomDocument document;
        Root(document);
        XmlOperation::SaveXmlContent2File(document, Path("missing/new.xml"));
        QVERIFY(!QFile::exists(Path("missing")));
    }

    void setTextReplacesTheOld()
    {
        QDomDocument document;
        QDomElement element = document.createElement("E");
        XmlOperation::SetElemmentText(document, element, "one");
        XmlOperation::SetElemmentText(document, element, "two");
        QCOMPARE(element.childNodes().size(), 1);
        QCOMPARE(element.text(), QString("two"));
    }

    // The walk skips what follows a text that it removes.
    void setTextKeepsEverySecondOfSeveralTexts()
    {
        QDomDocument document;
        QDomElement element = document.createElement("E");
        for (const char* text : {"two", "-three"})
            element.appendChild(document.createTextNode(text));
        element.appendChild(document.createElement("Kept"));
        XmlOperation::SetElemmentText(document, element, "-four");
        QCOMPARE(element.text(), QString("-three-four"));
        QVERIFY(!element.firstChildElement("Kept").isNull());
    }

    void opens_data()
    {
        constexpr int large = 100 << 20;
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("characters"); // of the root's text
        const auto row = [](const char* name, const QByteArray& content, int characters) {
            QTest::newRow(name) << content << characters;
        };
        row("name with a colon", "<a:b>x</a:b>", 1);
        row("as deep as may be", Nested(kMostLevels), 0);
        row("long entity, named ten times", LongEntity(1000, 10), 10000);
        row("longer entity, named once", LongEntity(5000, 1), 5000);
        row("short entity, named often", LongEntity(8, 100000), 800000);
        const auto many = [](const char* text) { return QByteArray(text).repeated(20000); };
        row("long entity beside ampersands that refer to nothing",
            WithEntity(1025, "&a;<![CDATA[" + many("& &a;") + "]]><!--" + many("&a;") + "--><?p " +
                                 many("&a;") + "?>" + many("&amp;&#65;")),
            1025 + 5 * 20000 + 2 * 20000);
        row("long entity beside a short one, named often", WithEntity(1025, "&a;" + many("&b;")),
            1025 + 20000);
        row("long entity in two bytes a character", Wide(WithEntity(1025, "&a;" + many("&amp;"))),
            1025 + 20000);
        row("later version", "<?xml version='1.1'?><r>1.1</r>", 3);
        row("character of two words", "<r>&#x1F600;</r>", 2);
        row("white space in a section and as a reference", "<r>\n <![CDATA[ ]]>&#x20;\n<b/> </r>",
            3); // the rest is layout
        row("large text", "<a>" + QByteArray(large, 'x') + "</a>", large);
    }
    void opens()
    {
        QFETCH(QByteArray, content);
        Write(Path("good.xml"), content);
        QDomDocument document("old");
        QVERIFY(XmlOperation::OpenXmlFile(document, Path("good.xml"), QIODevice::ReadOnly));
        QTEST(int(document.documentElement().text().size()), "characters");
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("element without end") << QByteArray("<a><b></a>");
        QTest::newRow("binary") << QByteArray("\x00\xff\xfe\x01", 4);
        QTest::newRow("too deep") << Nested(kMostLevels + 1);
        QTest::newRow("entities of entities") << ManyLaughs();
        const QByteArray often = QByteArray("&a;").repeated(50000);
        QTest::newRow("long entity, named often") << WithEntity(1000, often);
        QTest::newRow("long entity, named often in attributes")
            << WithEntity(1000, "<b c='" + often + "'/>");
        QTest::newRow("long entity, named often behind a comment")
            << WithEntity(1000, "<!-- ' --><![CDATA[<!--]]>" + often);
        QTest::newRow("long entity, named often, in two bytes a character")
            << Wide(WithEntity(1000, often));
        QTest::newRow("entity that begins a section")
            << "<!DOCTYPE r [<!ENTITY s '<![CDATA['><!ENTITY a \"" + QByteArray(1000, 'x') +
                   "\">]><r>&s;<!-- ]]>" + often + "--></r>";
        QTest::newRow("long entity, named often by default")
            << "<!DOCTYPE r [<!ENTITY a '" + QByteArray(1000, 'x') + "'><!ATTLIST r b CDATA '" +
                   often + "'>]><r/>";
        QTest::newRow("entity that names itself")
            << QByteArray("<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>");
    }
    void refuses()
    {
        QFETCH(QByteArray, content);
        Write(Path("bad.xml"), content);
        QDomDocument document("old");
        QVERIFY(!XmlOperation::OpenXmlFile(document, Path("bad.xml"), QIODevice::ReadOnly));
        QVERIFY(document.isNull());
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
            QStringList kept;
            const QDomDocument document = AnyDocument(declaration, random, kept);
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
        for (int level = 0; level < kMostLevels; ++level)
            parent = parent.appendChild(document.createElement("a"));
        XmlOperation::SaveXmlContent2File(document, Path("deep.xml"));
        QVERIFY(XmlOperation::OpenXmlFile(document, Path("deep.xml"), QIODevice::ReadOnly));
        QCOMPARE(document.elementsByTagName("a").size(), kMostLevels);
    }

    // Short in memory: the indentation is long.
    void savesNothingThatIsTooLarge()
    {
        Write(Path("huge.xml"), "<old/>");
        QDomDocument document;
        QDomNode parent = document.appendChild(document.createElement("a"));
        for (int level = 1; level < kMostLevels - 1; ++level)
            parent = parent.appendChild(document.createElement("a"));
        for (int i = 0; i < (1 << 30) / (4 * kMostLevels); ++i)
            parent.appendChild(document.createElement("a"));
        XmlOperation::SaveXmlContent2File(document, Path("huge.xml"));
        QCOMPARE(QFileInfo(Path("huge.xml")).size(), qint64(6));
    }

    void opensNoSuchFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << Path("missing");
        QTest::newRow("folder") << m_folder.path();
        QTest::newRow("no path") << QString();
#ifdef Q_OS_LINUX
        QTest::newRow("pipe") << Path("pipe");
        QTest::newRow("device without end") << "/dev/zero";
#endif
    }
    void opensNoSuchFile()
    {
        QFETCH(QString, path);
        QDomDocument document;
        Root(document);
        QVERIFY(!XmlOperation::OpenXmlFile(document, path, QIODevice::ReadOnly));
        QCOMPARE(document.documentElement().tagName(), QString("Root"));
    }

    void opensNoFileOnlyToWrite()
    {
        QDomDocument document;
        QVERIFY(!XmlOperation::OpenXmlFile(document, Path("new"), QIODevice::WriteOnly));
    }

#ifdef Q_OS_LINUX
    void savingToAPipeDoesNotWait()
    {
        QDomDocument document;
        Root(document);
        XmlOperation::SaveXmlContent2File(document, Path("pipe"));
    }
#endif
};

QTEST_GUILESS_MAIN(TestXml)

#include "tst_xml.moc"
