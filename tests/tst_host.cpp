// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/Files.h"
#include "tests/support/TestMedia.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int code;
    QString text;
};

QString HostProgram()
{
    return QCoreApplication::applicationDirPath() + "/" HOST_PROGRAM;
}

Run RunHost(const QStringList& arguments, const QString& program = HostProgram())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", QCoreApplication::applicationDirPath());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, QStringList{"--language", "English"} + arguments);
    const bool ended =
        process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromLocal8Bit(process.readAll())};
}

} // namespace

/// The demonstration host as its user meets it: arguments in, text and files out.
class tst_Host : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_output;

    QString path(const QString& name) const { return m_folder->filePath(name); }

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir(QDir::tempPath() + "/zwei Wörter проба-XXXXXX"));
        QVERIFY(m_folder->isValid());
        m_output = path("out");
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no media") << QStringList();
        QTest::newRow("unknown option") << QStringList{"--nonsense", "a"};
        QTest::newRow("no folder for the output") << QStringList{"--output", "/dev/null/out", "a"};
        QTest::newRow("unknown language") << QStringList{"--language", "a", "a"};
    }
    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        const Run run = RunHost(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY(!run.text.isEmpty());
    }

    void helpIsInTheChosenLanguage()
    {
        const QString english = RunHost({"--help"}).text;
        for (const char* word : {"MEDIA", "Usage:"})
            QVERIFY2(english.contains(word), qPrintable(english));
        if (!HAS_QT_TRANSLATIONS)
            QSKIP("built without Qt's translations");
        const QString german = RunHost({"--language", "German", "--help"}).text;
        QVERIFY(!german.isEmpty());
        for (const char* word : {"Usage", "[options]", "Options:", "Arguments:", "MEDIA"})
            QVERIFY2(!german.contains(word), qPrintable(german));
    }

    void unusableFilesAreExplained()
    {
        QVERIFY(QDir().mkpath(path("folder.mp4")));
        QVERIFY(SetContents(path("empty.mp4"), {}));
        QVERIFY(SetContents(path("text.mp4"), "No movie.\n"));
        QVERIFY(QDir().mkpath(m_output));
        QString logs = m_output;
        if (QFile::link(m_output, path("link")) && QFileInfo(path("link")).isDir())
            logs = path("link"); // the same log; Windows makes a link of the desktop
        const Run run = RunHost({"--output", m_output, "--log", logs + "/CommonLibDemo.log",
                                 path("missing.mp4"), path("folder.mp4"), path("empty.mp4"),
                                 path("text.mp4"), "/dev/zero"});
        QCOMPARE(run.code, 0);
        for (const char* line :
             {"missing.mp4: does not exist", "empty.mp4: is empty",
              "folder.mp4: is a folder, not a media file", "text.mp4: cannot be read as media"})
            QVERIFY2(run.text.contains(line), line);
        QVERIFY(!QFile::exists("/dev/zero") || run.text.contains("zero: is not a regular file"));
        QCOMPARE(QDir(m_output).entryList({"*.png"}), QStringList());
        const QByteArray log = Contents(m_output + "/CommonLibDemo.log");
        QVERIFY(log.contains("empty.mp4: is empty"));
        QVERIFY(log.contains("]:  end - ["));
    }

    void picturesNeverCoverEachOther()
    {
        // The first file lies where its own result would, and the others share its name.
        QImage picture(320, 200, QImage::Format_RGB32);
        QVERIFY(QDir().mkpath(m_output));
        const QStringList media{m_output + "/a.png", path("a.png"), path("a.bmp")};
        const QVector<QColor> colors{Qt::red, Qt::green, Qt::blue};
        for (int index = 0; index < media.size(); ++index) {
            picture.fill(colors[index]);
            QVERIFY(picture.save(media[index]));
        }
        const QByteArray original = Contents(media[0]);
        const QString log = path("elsewhere.log");

        const Run run = RunHost(QStringList{"--log", log, "--output", m_output} + media);
        QCOMPARE(run.code, 0);
        QVERIFY2(run.text.contains("Still picture, 320 × 200"), qPrintable(run.text));
        QCOMPARE(Contents(media[0]), original);
        for (int index = 0; index < media.size(); ++index) {
            const QImage page(m_output + QString("/a-%1.png").arg(index + 2));
            QVERIFY(!page.isNull());
            const QColor shown = page.pixelColor(page.rect().center());
            QVERIFY(qAbs(shown.hue() - colors[index].hue()) < 8);
        }
        QVERIFY(!Contents(log).isEmpty());
        QCOMPARE(Contents(m_output + "/CommonLibDemo.log"), Contents(log));
    }

    void filmOfSeveralFiles()
    {
        TestClip clip;
        clip.size = QSize(160, 90);
        for (const int frames : {6, 9}) {
            clip.frames = frames;
            QCOMPARE(MakeTestClip(path(QString("%1.mp4").arg(frames)), clip), QString());
        }
        const QString film = path("film.mov");
        const auto write = [&](const QString& preset) {
            return RunHost({"--output", m_output, "--export", film, "--preset", preset,
                            path("6.mp4"), path("9.mp4")});
        };
        QVERIFY(write("Zelluloid").text.contains("no preset \"Zelluloid\""));
        QVERIFY(!QFile::exists(film));
        QCOMPARE(write("ProRes 422 LT").code, 0);
        const QString told = RunHost({"--output", m_output, film}).text;
        QVERIFY2(told.contains("video, prores, 160 × 90, 25 fps"), qPrintable(told));
        QCOMPARE(RunFfmpeg({"-i", film, path("%d.png")}), QString());
        for (int i = 0; i < 15; ++i)
            QCOMPARE(ReadFrameNumber(QImage(path(QString("%1.png").arg(i + 1)))),
                     i < 6 ? i : i - 6);
        QVERIFY(!QFile::exists(path("16.png")));
    }

    void missingEngineIsTold()
    {
        const QString alone = path(HOST_PROGRAM);
        QVERIFY(QFile::copy(HostProgram(), alone));
        const Run run = RunHost({"--output", m_output, alone}, alone);
        QCOMPARE(run.code, 1);
        const QString module = QDir::toNativeSeparators(path("NLECore.dll"));
        // What is printed has the letters that the system's character set has.
        const QString shown = QString::fromLocal8Bit(module.toLocal8Bit());
        const QString expected = "The engine is missing or does not start: " + shown;
        QVERIFY2(run.text.contains(expected), qPrintable(run.text));
    }
};

QTEST_GUILESS_MAIN(tst_Host)
#include "tst_host.moc"
