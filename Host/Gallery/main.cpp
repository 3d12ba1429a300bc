// SPDX-License-Identifier: LGPL-2.1-or-later
// The library's widgets in a window, to try them and to take the pictures of the documents.
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Gallery/RulerPage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {

constexpr QSize kWindow(900, 90);

void AddOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription("Shows the library's widgets.");
    parser.addHelpOption();
    parser.addOptions({{"screenshot", "Write a picture of the window to <file> and end.", "file"},
                       {"zoom", "Zoom of the ruler.", "zoom", "330"},
                       {"frame", "Frame of the play head.", "frame", "800"},
                       {"offset", "Frame at the left edge.", "offset", "0"}});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    AddOptions(parser);
    parser.process(app);

    app.setStyleSheet(gGetCommonLibStyles());
    RulerPage page;
    page.setWindowTitle("CommonLib widgets");
    page.resize(kWindow);
    TimelineRuler* ruler = page.Ruler();
    ruler->SetZoom(parser.value("zoom").toFloat());
    ruler->SetOffsetFrames(parser.value("offset").toInt());
    ruler->SetCurrentFrames(parser.value("frame").toInt());
    page.show();

    const QString file = parser.value("screenshot");
    if (file.isEmpty())
        return QApplication::exec();
    if (page.grab().save(file))
        return 0;
    QTextStream(stderr) << "cannot write " << file << '\n';
    return 1;
}
