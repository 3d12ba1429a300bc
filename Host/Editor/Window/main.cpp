// SPDX-License-Identifier: LGPL-2.1-or-later
// A small editor that shows each part of the library at work.
#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/FileCommands.h"
#include "Host/HostLanguage.h"
#include "Host/QtMessages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

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
    parser.addPositionalArgument(QStringLiteral("project"),
                                 Translated(QT_TRANSLATE_NOOP("Editor", "Project to open.")));
}

EditorWindow::Paths MakePaths()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(data);
    return {QDir(data).filePath(QStringLiteral("autosave")),
            QDir(data).filePath(QStringLiteral("CommonLibEditor.log"))};
}

/// Messages go to standard error where the log is another editor's.
std::unique_ptr<QtMessages> OpenLog(const QString& path)
{
    const bool isOpen =
        GetGlobalLogInstance()->Init(QFile::encodeName(path).constData(), false, LogLevelInfo) == 0;
    return isOpen ? std::make_unique<QtMessages>() : nullptr;
}

int Run(const QCommandLineParser& parser)
{
    const EditorWindow::Paths paths = MakePaths();
    const std::unique_ptr<QtMessages> messages = OpenLog(paths.log);
    if (!EngineFactory()) {
        QTextStream(stderr) << Translated(QT_TRANSLATE_NOOP("Editor", "The engine is missing."))
                            << '\n';
        return 1;
    }
    EditorWindow window(paths);
    window.resize(kWindow);
    window.show();
    QTimer::singleShot(0, &window, [&] {
        window.OfferRecovery();
        if (!parser.positionalArguments().isEmpty())
            window.Files().Open(parser.positionalArguments().constFirst());
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("CommonLib"));
    QApplication::setApplicationName(QStringLiteral("CommonLibEditor"));
    QApplication::setApplicationVersion(QStringLiteral(EDITOR_VERSION));
    const HostLanguage language;
    QCommandLineParser parser;
    AddOptions(parser);
    parser.process(app);
    if (const QString complaint = HostLanguage::Complaint(parser); !complaint.isEmpty()) {
        QTextStream(stderr) << complaint << '\n';
        return 1;
    }
    app.setStyleSheet(gGetCommonLibStyles());
    const int result = Run(parser);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    ReleseGlobalLogInstance();
    return result;
}
