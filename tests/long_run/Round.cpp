// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/long_run/Round.h"

#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/Tour.h"
#include "Host/Gallery/GalleryWindow.h"
#include "Host/Gallery/Pages.h"
#include "Host/HostLanguage.h"
#include "Host/Widgets/HostStyle.h"
#include "tests/support/RandomEdits.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QPixmapCache>

namespace {

constexpr int kEdits = 300;
constexpr int kMoves = 20;
constexpr int kQuiet = 1500; // milliseconds until what a new project leaves has gone

} // namespace

const char* Round::Run(int number)
{
    Project& project = m_window.Shown();
    if (!project.New(EngineFixture::kSmall) || !Tour(m_window, m_folder, m_media).Run())
        return "tour";
    if (!Exchange())
        return "documents";
    Edit();
    Play();
    Dress(number);
    LookAround();
    if (!project.New(EngineFixture::kSmall))
        return "a new project";
    QTest::qWait(kQuiet);
    // Qt keeps 10 MiB of icons of looks gone by, so what it keeps would grow for hours.
    QPixmapCache::clear();
    return nullptr;
}

bool Round::Exchange()
{
    Project& project = m_window.Shown();
    return project.SaveAs(m_folder + "/film.otio") && project.Open(m_folder + "/film.mlt") &&
           project.Open(m_folder + "/film.otio");
}

void Round::Edit()
{
    RandomEdits edits(m_window.Shown(), m_random);
    for (int i = 0; i < kEdits; ++i) {
        edits.Act();
        QApplication::processEvents();
    }
}

void Round::Play()
{
    MediaPlayer& player = m_window.Player();
    RandomEdits any(m_window.Shown(), m_random);
    for (int i = 0; i < kMoves; ++i) {
        const int frame = any.Any(0, std::max(0, player.Length() - 1));
        i % 4 == 0 ? player.Play(i % 8 == 0 ? 1 : -2) : player.Scrub(frame);
        QTest::qWait(50);
    }
    player.Pause();
}

/// In the next language, so that each has its turn, and the other look.
void Round::Dress(int number)
{
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    for (const int row : {number % count, 0}) {
        HostLanguage::Select(rows[row].locale);
        HostStyle::Apply(!HostStyle::IsLight());
        QTest::qWait(100);
    }
}

void Round::LookAround()
{
    for (QDockWidget* dock : m_window.findChildren<QDockWidget*>()) {
        dock->toggleViewAction()->trigger();
        QTest::qWait(20);
        dock->toggleViewAction()->trigger();
    }
    m_window.findChild<QAction*>(QStringLiteral("export"))->trigger();
    QTest::qWait(100);
    for (QDialog* dialog : m_window.findChildren<QDialog*>())
        dialog->close();
    // Films that are done stay in the list until somebody takes them out.
    ExportQueue& films = m_window.Films();
    while (!films.Jobs().isEmpty())
        films.Remove(films.Jobs().first().number);
    GalleryWindow gallery;
    gallery.show();
    for (const GalleryPage& page : GalleryPages()) {
        gallery.ShowPage(QLatin1String(page.name));
        QTest::qWait(100);
    }
}
