// SPDX-License-Identifier: LGPL-2.1-or-later
// The library's widgets in a window, to try them and to take the pictures of the documents.
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Gallery/GalleryWindow.h"
#include "Host/Gallery/Pages.h"
#include "Host/HostLanguage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {

constexpr QSize kWindow(960, 600);

QString Translated(const char* text)
{
    return QCoreApplication::translate("Gallery", text);
}

void AddOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        Translated(QT_TRANSLATE_NOOP("Gallery", "Shows the library's widgets.")));
    parser.addHelpOption();
    parser.addOptions(
        {{"page", Translated(QT_TRANSLATE_NOOP("Gallery", "Begin with the page <name>.")), "name",
          GalleryPages()[0].name},
         {"pages", Translated(QT_TRANSLATE_NOOP("Gallery", "List the names of the pages."))},
         {"screenshot",
          Translated(QT_TRANSLATE_NOOP("Gallery", "Write a picture of the page to <file>.")),
          "file"},
         HostLanguage::Option()});
}

int Failure(const QString& message)
{
    QTextStream(stderr) << message << '\n';
    return 1;
}

int ListPages()
{
    QTextStream out(stdout);
    for (const GalleryPage& page : GalleryPages())
        out << page.name << '\n';
    return 0;
}

int WritePicture(GalleryWindow& window, const QString& file)
{
    // The keyboard's focus belongs to no picture.
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
    QCoreApplication::processEvents();
    if (window.grab().save(file))
        return 0;
    return Failure(Translated(QT_TRANSLATE_NOOP("Gallery", "cannot write %1")).arg(file));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const HostLanguage language;
    QCommandLineParser parser;
    AddOptions(parser);
    parser.process(app);
    if (const QString complaint = HostLanguage::Complaint(parser); !complaint.isEmpty())
        return Failure(complaint);
    if (parser.isSet("pages"))
        return ListPages();

    // All the style that there is.
    app.setStyleSheet(gGetCommonLibStyles());
    GalleryWindow window;
    window.resize(kWindow);
    const QString page = parser.value("page");
    if (!window.ShowPage(page))
        return Failure(Translated(QT_TRANSLATE_NOOP("Gallery", "no page %1")).arg(page));
    window.show();
    const QString file = parser.value("screenshot");
    return file.isEmpty() ? QApplication::exec() : WritePicture(window, file);
}
