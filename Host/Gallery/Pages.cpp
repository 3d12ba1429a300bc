// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/Pages.h"

#include "Host/Gallery/ButtonPage.h"
#include "Host/Gallery/DragPage.h"
#include "Host/Gallery/LanguagePage.h"
#include "Host/Gallery/PlayerPage.h"
#include "Host/Gallery/RulerPage.h"
#include "Host/Gallery/SliderPage.h"
#include "Host/Import/ImportPage.h"

#include <QCoreApplication>

namespace {

template <typename Page>
QWidget* Make(QWidget* parent)
{
    return new Page(parent);
}

} // namespace

const QVector<GalleryPage>& GalleryPages()
{
    static const QVector<GalleryPage> pages{
        {"ruler", QT_TRANSLATE_NOOP("Gallery", "Ruler"),
         QT_TRANSLATE_NOOP("Gallery", "Drag the play head; the wheel scrolls, with Ctrl it zooms; "
                                      "a double click fits all."),
         Make<RulerPage>},
        {"player", QT_TRANSLATE_NOOP("Gallery", "Player"),
         QT_TRANSLATE_NOOP("Gallery", "Open a file and play it; K plays and pauses, comma and full "
                                      "stop step a frame."),
         Make<PlayerPage>},
        {"sliders", QT_TRANSLATE_NOOP("Gallery", "Sliders"),
         QT_TRANSLATE_NOOP("Gallery", "Drag, use the wheel, or the arrow keys."), Make<SliderPage>},
        {"buttons", QT_TRANSLATE_NOOP("Gallery", "Buttons and labels"),
         QT_TRANSLATE_NOOP("Gallery", "The last line tells what they signal."), Make<ButtonPage>},
        {"drag-values", QT_TRANSLATE_NOOP("Gallery", "Drag values"),
         QT_TRANSLATE_NOOP("Gallery", "Drag on a number, with Shift faster, with Ctrl slower; a "
                                      "click edits it."),
         Make<DragPage>},
        {"import", QT_TRANSLATE_NOOP("Gallery", "Import"),
         QT_TRANSLATE_NOOP("Gallery", "Copies media from cameras, phones and cards."),
         Make<ImportPage>},
        {"languages", QT_TRANSLATE_NOOP("Gallery", "Languages"),
         QT_TRANSLATE_NOOP("Gallery", "A choice reaches every window at once."),
         Make<LanguagePage>},
    };
    return pages;
}
