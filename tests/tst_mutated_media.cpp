// SPDX-License-Identifier: LGPL-2.1-or-later
// Damaged files of many formats: each is opened, drawn, heard and exported by a process of little
// memory and time, which ends well, whatever it makes of them.
//
// COMMONLIB_MUTATED_FILES is how many, COMMONLIB_SEED where they begin; the same numbers give the
// same files. What ends a process badly stays in the folder "mutated" beside the program.
#include "mutations/Mutations.h"
#include "support/Seed.h"
#include "support/TestMedia.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

constexpr int kPatience = 120000; // milliseconds, for a process that waits for itself
constexpr int kFiles = 68;

struct Format
{
    const char* suffix;
    const char* video; ///< what the program for media is told; empty for no picture
    const char* sound;
};

const Format kFormats[] = {
    {"h264.mp4", "-c:v libx264 -g 12", "-c:a aac"},
    {"hevc.mp4", "-c:v libx265 -x265-params log-level=none", "-c:a ac3"},
    {"av1.mp4", "-c:v libsvtav1 -preset 12", "-c:a libopus"},
    {"parts.mp4", "-c:v libx264 -g 6 -movflags frag_keyframe+empty_moov", "-c:a aac"},
    {"prores.mov", "-c:v prores_ks", "-c:a pcm_s16le"},
    {"dnxhd.mov", "-c:v dnxhd -profile:v dnxhr_lb -pix_fmt yuv422p -s 320x180", "-c:a pcm_s24be"},
    {"qtrle.mov", "-c:v qtrle", "-c:a alac"},
    {"mjpeg.mov", "-c:v mjpeg -pix_fmt yuvj420p", "-c:a adpcm_ima_qt"},
    {"h263.3gp", "-c:v h263 -s 176x144", "-c:a aac"},
    {"ffv1.mkv", "-c:v ffv1", "-c:a flac"},
    {"vp8.webm", "-c:v libvpx -deadline realtime", "-c:a libvorbis"},
    {"vp9.webm", "-c:v libvpx-vp9 -deadline realtime -cpu-used 8", "-c:a libopus"},
    {"mpeg4.avi", "-c:v mpeg4 -bf 2", "-c:a libmp3lame"},
    {"huffyuv.avi", "-c:v huffyuv", "-c:a adpcm_ms"},
    {"h264.ts", "-c:v libx264 -g 12", "-c:a aac"},
    {"mpeg2.mpg", "-c:v mpeg2video", "-c:a mp2"},
    {"wmv2.wmv", "-c:v wmv2", "-c:a wmav2"},
    {"flv1.flv", "-c:v flv", "-c:a libmp3lame -ar 44100"},
    {"theora.ogv", "-c:v libtheora", "-c:a libvorbis"},
    {"mpeg2.mxf", "-c:v mpeg2video -r 25", "-c:a pcm_s16le -ar 48000"},
    {"picture.gif", "", nullptr},
    {"picture.apng", "-plays 0", nullptr},
    {"picture.webp", "-c:v libwebp_anim", nullptr},
    {"still.png", "-frames:v 1", nullptr},
    {"still.jpg", "-frames:v 1", nullptr},
    {"still.tif", "-frames:v 1", nullptr},
    {"still.bmp", "-frames:v 1", nullptr},
    {"still.jxl", "-frames:v 1", nullptr},
    {"still.jp2", "-frames:v 1", nullptr},
    {"still.exr", "-frames:v 1", nullptr},
    {"sound.wav", nullptr, "-c:a pcm_s16le"},
    {"sound.flac", nullptr, "-c:a flac"},
    {"sound.mp3", nullptr, "-c:a libmp3lame"},
    {"sound.ogg", nullptr, "-c:a libvorbis"},
};

QByteArray Make(const Format& format)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QLatin1String(format.suffix));
    QStringList arguments;
    if (format.video)
        arguments << "-f"
                  << "lavfi"
                  << "-i"
                  << "testsrc2=s=160x96:r=25:d=0.8";
    if (format.sound)
        arguments << "-f"
                  << "lavfi"
                  << "-i"
                  << "sine=440:r=48000:d=0.8";
    arguments += QString(format.video).split(' ', Qt::SkipEmptyParts);
    arguments += QString(format.sound).split(' ', Qt::SkipEmptyParts);
    const QString failure = RunFfmpeg(arguments << path);
    QFile file(path);
    if (!failure.isEmpty() || !file.open(QIODevice::ReadOnly))
        qWarning("%s", qPrintable(failure));
    return file.readAll();
}

int Setting(const char* name, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : otherwise;
}

/// How the process ended; empty when well.
QString TryIn(const QString& folder, const QString& file)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationDirPath() + "/media_trial", {file, folder});
    const bool hasEnded = process.waitForFinished(kPatience);
    const QString step = QString(process.readAllStandardOutput()).trimmed().section('\n', -1);
    if (!hasEnded)
        return "waits for ever: " + step;
    if (process.exitStatus() == QProcess::NormalExit)
        return process.exitCode() == 0 ? QString() : "failed: " + step;
    const int signal = process.exitCode();
    return (signal == SIGXCPU ? "takes too long: " : QString("signal %1: ").arg(signal)) + step;
}

} // namespace

class tst_MutatedMedia : public QObject
{
    Q_OBJECT

    const unsigned m_seed = Seed();

private slots:
    void endsWell_data()
    {
        QTest::addColumn<int>("format");
        for (int format = 0; format < int(std::size(kFormats)); ++format)
            QTest::newRow(kFormats[format].suffix) << format;
    }
    void endsWell()
    {
        QFETCH(int, format);
        const int formats = int(std::size(kFormats));
        const QByteArray whole = Make(kFormats[format]);
        QVERIFY(!whole.isEmpty());
        QStringList found;
        for (int number = format; number < Setting("COMMONLIB_MUTATED_FILES", kFiles);
             number += formats) {
            const QTemporaryDir folder;
            const QString name = QString("%1-%2-%3")
                                     .arg(m_seed)
                                     .arg(number)
                                     .arg(QLatin1String(kFormats[format].suffix));
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(Mutations(m_seed * 1000003U + unsigned(number)).Of(whole));
            file.close();
            const QString end = TryIn(folder.path(), file.fileName());
            if (end.isEmpty())
                continue;
            found << name + ": " + end;
            const QDir kept(QCoreApplication::applicationDirPath() + "/mutated");
            QDir().mkpath(kept.path());
            file.copy(kept.filePath(name));
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
    }
};

QTEST_GUILESS_MAIN(tst_MutatedMedia)
#include "tst_mutated_media.moc"
