// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEProperties.h"
#include "Host/Console.h"
#include "Host/ExportJob.h"
#include "Host/HostLanguage.h"
#include "Host/MediaJob.h"
#include "Host/NarrowPath.h"
#include "Host/OutputFolder.h"
#include "Host/QtMessages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace {

/// Translation context of what the program itself says.
struct Program
{
    Q_DECLARE_TR_FUNCTIONS(CommonLibDemo)
};

enum ExitCode
{
    Success = 0,
    Failure = 1, ///< the engine is missing or a result cannot be written
    WrongUsage = 2
};

const char kLogName[] = "CommonLibDemo.log";

struct Options
{
    QString output;
    QString log;
    bool echo;
    QStringList media;
    QString film;
    QString preset;
    bool listsPresets;
};

/// Opens the process's log; false when the host must work without it.
bool StartLog(const Options& options, Console& console)
{
    // A longer path would be cut, and the log be another file than the one asked for.
    constexpr int longestPath = 255;
    const QByteArray path = NarrowPath(options.log);
    BaseLog* log = GetGlobalLogInstance();
    if (path.isEmpty() || path.size() > longestPath ||
        log->Init(path.constData(), options.echo, LogLevelAll) != 0) {
        console.Print(
            Program::tr("The log %1 cannot be opened; going on without it.").arg(options.log));
        return false;
    }
    log->LogInfo("Host/main", "main", __LINE__, "begin");
    return true;
}

/// Puts a copy of the log beside the results when it was kept elsewhere.
void CopyLog(const Options& options)
{
    const QString copy = QDir(options.output).filePath(QString::fromLatin1(kLogName));
    // Also by way of a link it may be the same file, which removing the copy would lose.
    if (QFileInfo(copy).canonicalFilePath() == QFileInfo(options.log).canonicalFilePath())
        return;
    QFile::remove(copy);
    QFile::copy(options.log, copy);
}

int ReportFiles(const Options& options, OutputFolder& output, Console& console)
{
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    if (!provider->CreateNLEProperties()) {
        console.Print(Program::tr("The engine is missing or does not start: %1")
                          .arg(QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                                        QStringLiteral("/NLECore.dll"))));
        return Failure;
    }
    ExportJob film(*provider, console);
    if (options.listsPresets)
        return film.ListPresets() ? Success : Failure;
    if (!options.film.isEmpty())
        return film.Run(options.media, options.film, options.preset) ? Success : Failure;
    bool written = true;
    MediaJob job(*provider, console, output);
    for (const QString& path : options.media)
        written = job.Run(path) && written;
    return written ? Success : Failure;
}

int Run(const Options& options, Console& console)
{
    OutputFolder output(options.output, options.media);
    if (!output.Create()) {
        console.Print(Program::tr("The folder %1 cannot be made.").arg(options.output));
        return WrongUsage;
    }
    std::optional<QtMessages> messages;
    const bool logged = StartLog(options, console);
    if (logged)
        messages.emplace();
    const int code = ReportFiles(options, output, console);
    // Everything that logs while it is destroyed goes before the log does.
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    messages.reset();
    GetGlobalLogInstance()->LogInfo("Host/main", "main", __LINE__, "end");
    ReleseGlobalLogInstance();
    if (logged)
        CopyLog(options);
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    // The host opens no window, so it needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("CommonLibDemo"));

    const HostLanguage language;

    QCommandLineParser parser;
    parser.setApplicationDescription(
        Program::tr("Tells what media files are and writes a contact sheet of each."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  Program::tr("Print this help."));
    const QCommandLineOption output(QStringLiteral("output"), Program::tr("Folder for results."),
                                    Program::tr("FOLDER"), QStringLiteral("demo-output"));
    const QCommandLineOption log(QStringLiteral("log"),
                                 Program::tr("Log file, by default %1 among the results.")
                                     .arg(QString::fromLatin1(kLogName)),
                                 Program::tr("FILE"));
    const QCommandLineOption echo(QStringLiteral("echo"), Program::tr("Print the log as well."));
    const QCommandLineOption film(QStringLiteral("export"),
                                  Program::tr("Write a film of all media files to this file, "
                                              "whose suffix chooses how it is encoded."),
                                  Program::tr("FILE"));
    const QCommandLineOption preset(QStringLiteral("preset"),
                                    Program::tr("Preset that the film is encoded with."),
                                    Program::tr("NAME"));
    const QCommandLineOption presets(QStringLiteral("presets"),
                                     Program::tr("List the presets for films."));
    parser.addOptions({help, output, log, echo, film, preset, presets, HostLanguage::Option()});
    parser.addPositionalArgument(Program::tr("MEDIA…"), Program::tr("Media files."));

    Console console;
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (understood && parser.isSet(help)) {
        console.Print(parser.helpText());
        return Success;
    }
    const bool needsMedia = !parser.isSet(presets) && parser.positionalArguments().isEmpty();
    if (!understood || needsMedia) {
        console.Print(understood ? Program::tr("No media file named.") : parser.errorText());
        console.Print(parser.helpText());
        return WrongUsage;
    }
    if (const QString complaint = HostLanguage::Complaint(parser); !complaint.isEmpty()) {
        console.Print(complaint);
        return WrongUsage;
    }

    Options options{parser.value(output),         parser.value(log),  parser.isSet(echo),
                    parser.positionalArguments(), parser.value(film), parser.value(preset),
                    parser.isSet(presets)};
    if (options.log.isEmpty())
        options.log = QDir(options.output).filePath(QString::fromLatin1(kLogName));
    return Run(options, console);
}
