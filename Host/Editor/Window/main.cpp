// SPDX-License-Identifier: LGPL-2.1-or-later
// A small editor that shows each part of the library at work.
#include "Com/AnyQt.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/ModuleFolders.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/FileCommands.h"
#include "Host/Editor/Window/Tour.h"
#include "Host/Editor/Window/WhenShown.h"
#include "Host/Gallery/GalleryOptions.h"
#include "Host/HostLanguage.h"
#include "Host/NarrowPath.h"
#include "Host/QtMessages.h"
#include "Host/Widgets/HostStyle.h"
#include "Host/Widgets/LoopWatch.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

constexpr QSize kWindow(1280, 800);

QString Translated(const char* text)
{
    return QCoreApplication::translate("Editor", text);
}

void AddOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(Translated(QT_TRANSLATE_NOOP("Editor", "A small editor.")));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(HostLanguage::Option());
    parser.addOptions(GalleryOptions::All());
    parser.addOption(
        {"screenshot",
         Translated(QT_TRANSLATE_NOOP("Editor", "Write a picture of the window to <file>.")),
         "file"});
    parser.addOption({"tour",
                      Translated(QT_TRANSLATE_NOOP(
                          "Editor", "Make a small film of the media by itself, and put pictures, "
                                    "the film and a report into <folder>.")),
                      "folder"});
    parser.addPositionalArgument(
        QStringLiteral("files"),
        Translated(QT_TRANSLATE_NOOP("Editor", "A project to open, and media for the bin.")));
}

EditorWindow::Paths MakePaths()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(data);
    return {QDir(data).filePath(QStringLiteral("autosave")),
            QDir(data).filePath(QStringLiteral("CommonLibEditor.log")),
            QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                QStringLiteral("/preview")};
}

/// Messages go to standard error where the log is another editor's.
std::unique_ptr<QtMessages> OpenLog(const QString& path)
{
    const bool isOpen =
        GetGlobalLogInstance()->Init(NarrowPath(path).constData(), false, LogLevelInfo) == 0;
    return isOpen ? std::make_unique<QtMessages>() : nullptr;
}

/// Opens the first project that is among \a files; the others are media.
void OpenFiles(EditorWindow& window, QStringList files)
{
    const QStringList suffixes = {QStringLiteral("mlt"), QStringLiteral("otio")};
    const auto project = std::find_if(files.begin(), files.end(), [&](const QString& file) {
        return suffixes.contains(QFileInfo(file).suffix(), Qt::CaseInsensitive);
    });
    if (project != files.end()) {
        window.Files().Open(*project);
        files.erase(project);
    }
    if (!files.isEmpty())
        window.AddMedia(files);
}

/// Writes a picture of the window to \a file once nothing has changed in it for two seconds, and
/// ends the program.
void WritePicture(EditorWindow& window, const QString& file)
{
    constexpr int between = 500; // milliseconds
    constexpr int enough = 4;
    auto* timer = new QTimer(&window);
    const auto look = [&window, file, before = QImage(), same = 0]() mutable {
        const QImage picture = window.grab().toImage();
        same = picture == before ? same + 1 : 0;
        before = picture;
        if (same == enough)
            QApplication::exit(picture.save(file) ? 0 : 1);
    };
    QObject::connect(timer, &QTimer::timeout, &window, look);
    timer->start(between);
}

void NoteLongWait(double milliseconds)
{
    constexpr double tolerable = 100;
    if (milliseconds > tolerable)
        qWarning("The window has not answered for %.0f ms.", milliseconds);
}

/// \a since began with the program.
int Run(const QCommandLineParser& parser, const QElapsedTimer& since)
{
    const QString picture = parser.value(QStringLiteral("screenshot"));
    if (const auto result = GalleryOptions::Run(parser, picture))
        return *result;
    const EditorWindow::Paths paths = MakePaths();
    const std::unique_ptr<QtMessages> messages = OpenLog(paths.log);
    if (!EngineFactory()) {
        QTextStream(stderr) << Translated(QT_TRANSLATE_NOOP("Editor", "The engine is missing."))
                            << '\n';
        return 1;
    }
    EditorWindow window(paths);
    if (!picture.isEmpty() || parser.isSet(QStringLiteral("tour")))
        window.resize(kWindow); // whatever screen there is
    window.show();
    const LoopWatch watch(std::chrono::milliseconds(50));
    QObject::connect(&watch, &LoopWatch::Answered, &NoteLongWait);
    WhenShown(window, [&] {
        qInfo("The window is there after %d ms.", int(since.elapsed()));
        if (parser.isSet(QStringLiteral("tour"))) {
            Tour tour(window, parser.value(QStringLiteral("tour")), parser.positionalArguments());
            return QApplication::exit(tour.Run() ? 0 : 1);
        }
        window.OfferRecovery();
        OpenFiles(window, parser.positionalArguments());
        qInfo("Its files are open after %d ms.", int(since.elapsed()));
        if (!picture.isEmpty())
            WritePicture(window, picture);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer since;
    since.start();
    AnyQt::FollowScreens();
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("CommonLib"));
    QApplication::setApplicationName(QStringLiteral("CommonLibEditor"));
    QApplication::setApplicationVersion(QStringLiteral(EDITOR_VERSION));
    SetModuleFolders({QApplication::applicationDirPath() + QStringLiteral("/" EDITOR_DATA)});
    const HostLanguage language;
    QCommandLineParser parser;
    AddOptions(parser);
    parser.process(app);
    if (const QString complaint = HostLanguage::Complaint(parser); !complaint.isEmpty()) {
        QTextStream(stderr) << complaint << '\n';
        return 1;
    }
    HostStyle::Apply(EditorWindow::WantsLight());
    const int result = Run(parser, since);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    ReleseGlobalLogInstance();
    return result;
}
