// SPDX-License-Identifier: LGPL-2.1-or-later
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

namespace {

struct Run
{
    int code;
    QString text;
};

Run runHost(const QString& program, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), QCoreApplication::applicationDirPath());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended =
        process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAll())};
}

Run runHost(const QStringList& arguments)
{
    return runHost(QCoreApplication::applicationDirPath() + QStringLiteral("/CommonLibDemo"),
                   arguments);
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A second of sound as a WAV file: a full square wave, then half a second of silence.
QByteArray halfSilentSound()
{
    constexpr int rate = 8000;
    QByteArray data(rate * 2, 0);
    for (int sample = 0; sample < rate / 2; ++sample)
        qToLittleEndian<qint16>(sample % 2 ? 32000 : -32000, data.data() + qint64(sample) * 2);
    const auto number = [](auto value) {
        QByteArray bytes(int(sizeof value), 0);
        qToLittleEndian(value, bytes.data());
        return bytes;
    };
    return "RIFF" + number(quint32(36 + data.size())) + "WAVEfmt " + number(quint32(16)) +
           number(quint16(1)) + number(quint16(1)) + number(quint32(rate)) +
           number(quint32(rate * 2)) + number(quint16(2)) + number(quint16(16)) + "data" +
           number(quint32(data.size())) + data;
}

} // namespace

/// The demonstration host as its user meets it: arguments in, text and files out.
class tst_Host : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void wrongUsage_data();
    void wrongUsage();
    void unusableFilesAreExplained();
    void picturesNeverCoverEachOther();
    void soundShowsItsWave();
    void missingEngineIsTold();

private:
    QString path(const QString& name) const { return m_folder->path() + QLatin1Char('/') + name; }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_output;
};

void tst_Host::init()
{
    m_folder.reset(
        new QTemporaryDir(QDir::tempPath() + QStringLiteral("/zwei Wörter проба-XXXXXX")));
    QVERIFY(m_folder->isValid());
    m_output = path(QStringLiteral("out"));
}

void tst_Host::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no file") << QStringList{};
    QTest::newRow("unknown option")
        << QStringList{QStringLiteral("--nonsense"), QStringLiteral("a")};
    QTest::newRow("output folder that cannot be made") << QStringList{
        QStringLiteral("--output"), QStringLiteral("/dev/null/out"), QStringLiteral("a")};
}

void tst_Host::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const Run run = runHost(arguments);
    QCOMPARE(run.code, 2);
    QVERIFY(!run.text.isEmpty());
}

void tst_Host::unusableFilesAreExplained()
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("folder.mp4"))));
    QVERIFY(writeFile(path(QStringLiteral("zero.mp4")), {}));
    QVERIFY(writeFile(path(QStringLiteral("text.mp4")), "This is not a movie.\n"));
    QStringList arguments{QStringLiteral("--output"), m_output};
    for (const char* name : {"missing.mp4", "folder.mp4", "zero.mp4", "text.mp4"})
        arguments << path(QString::fromLatin1(name));
    arguments << QStringLiteral("/dev/zero");

    const Run run = runHost(arguments);
    QCOMPARE(run.code, 0);
    for (const char* line :
         {"missing.mp4: does not exist", "folder.mp4: is a folder, not a media file",
          "zero.mp4: is empty", "text.mp4: cannot be read as media", "zero: is not a regular file"})
        QVERIFY2(run.text.contains(QLatin1String(line)), line);
    QVERIFY(QDir(m_output).entryList({QStringLiteral("*.png")}).isEmpty());
    const QByteArray log = readFile(m_output + QStringLiteral("/CommonLibDemo.log"));
    QVERIFY(log.contains("zero.mp4: is empty"));
    QVERIFY(log.contains("]:  end - ["));
}

void tst_Host::picturesNeverCoverEachOther()
{
    // The first file lies where its own result would, and the others share its name.
    QImage picture(320, 200, QImage::Format_RGB32);
    QVERIFY(QDir().mkpath(m_output));
    const QStringList media{m_output + QStringLiteral("/a.png"), path(QStringLiteral("a.png")),
                            path(QStringLiteral("a.bmp"))};
    const QVector<QColor> colors{Qt::red, Qt::green, Qt::blue};
    for (int index = 0; index < media.size(); ++index) {
        picture.fill(colors[index]);
        QVERIFY(picture.save(media[index]));
    }
    const QByteArray original = readFile(media[0]);
    const QString log = path(QStringLiteral("elsewhere.log"));

    const Run run = runHost(
        QStringList{QStringLiteral("--log"), log, QStringLiteral("--output"), m_output} + media);
    QCOMPARE(run.code, 0);
    QVERIFY2(run.text.contains(QStringLiteral("Still picture, 320 × 200")), qPrintable(run.text));
    QCOMPARE(readFile(media[0]), original);
    for (int index = 0; index < media.size(); ++index) {
        const QImage page(m_output + QStringLiteral("/a-%1.png").arg(index + 2));
        QVERIFY(!page.isNull());
        const QColor shown = page.pixelColor(page.rect().center());
        QVERIFY(qAbs(shown.red() - colors[index].red()) < 8 &&
                qAbs(shown.green() - colors[index].green()) < 8 &&
                qAbs(shown.blue() - colors[index].blue()) < 8);
    }
    QVERIFY(!readFile(log).isEmpty());
    QCOMPARE(readFile(m_output + QStringLiteral("/CommonLibDemo.log")), readFile(log));
}

void tst_Host::soundShowsItsWave()
{
    QVERIFY(writeFile(path(QStringLiteral("half.wav")), halfSilentSound()));
    const Run run =
        runHost({QStringLiteral("--output"), m_output, path(QStringLiteral("half.wav"))});
    QCOMPARE(run.code, 0);
    QVERIFY2(run.text.contains(QStringLiteral("audio, pcm_s16le, 8000 Hz, 1 channel")),
             qPrintable(run.text));

    const QImage page(m_output + QStringLiteral("/half.png"));
    QVERIFY(!page.isNull());
    const auto blueRows = [&page](int x) {
        int rows = 0;
        for (int y = 0; y < page.height(); ++y)
            rows += page.pixelColor(x, y).blue() > 200 && page.pixelColor(x, y).red() < 120 ? 1 : 0;
        return rows;
    };
    QVERIFY(blueRows(page.width() * 3 / 10) > page.height() / 3);
    QVERIFY(blueRows(page.width() * 7 / 10) < 4);
}

void tst_Host::missingEngineIsTold()
{
    const QString alone = path(QStringLiteral("CommonLibDemo"));
    QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + QStringLiteral("/CommonLibDemo"),
                        alone));
    const Run run = runHost(alone, {QStringLiteral("--output"), m_output, alone});
    QCOMPARE(run.code, 1);
    QVERIFY(run.text.contains(QStringLiteral("The engine is missing or does not start: ") +
                              path(QStringLiteral("NLECore.dll"))));
}

QTEST_GUILESS_MAIN(tst_Host)
#include "tst_host.moc"
