// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/GalleryOptions.h"

#include "Host/Gallery/GalleryWindow.h"
#include "Host/Gallery/Pages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {

constexpr QSize kWindow(960, 600);

QString Translated(const char* text)
{
    return QCoreApplication::translate("Gallery", text);
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

QList<QCommandLineOption> GalleryOptions::All()
{
    return {
        {"page", Translated(QT_TRANSLATE_NOOP("Gallery", "Begin with the page <name>.")), "name"},
        {"pages", Translated(QT_TRANSLATE_NOOP("Gallery", "List the names of the pages."))}};
}

std::optional<int> GalleryOptions::Run(const QCommandLineParser& parser, const QString& picture)
{
    if (parser.isSet(QStringLiteral("pages")))
        return ListPages();
    if (!parser.isSet(QStringLiteral("page")))
        return {};
    GalleryWindow window;
    window.resize(kWindow);
    const QString page = parser.value(QStringLiteral("page"));
    if (!window.ShowPage(page))
        return Failure(Translated(QT_TRANSLATE_NOOP("Gallery", "no page %1")).arg(page));
    window.show();
    return picture.isEmpty() ? QApplication::exec() : WritePicture(window, picture);
}
