// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinCommands.h"

#include "Host/Editor/Bin/BinIntake.h"
#include "Host/Editor/Bin/BinView.h"
#include "Host/Editor/Bin/MediaBin.h"
#include "Host/Editor/Bin/MediaFinder.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Import/ImportDialog.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>

namespace {

/// The key that does the same in the view, as menus show it.
QString WithKey(const QString& text, int key)
{
    return text + QLatin1Char('\t') + QKeySequence(key).toString(QKeySequence::NativeText);
}

bool IsUnused(const BinItem& item)
{
    return item.uses == 0;
}

bool IsOfflineItem(const BinItem& item)
{
    return item.IsOffline();
}

} // namespace

BinCommands::BinCommands(const Parts& parts, QWidget* window)
    : QObject(window)
    , m_parts(parts)
    , m_window(window)
    , m_addMenu(new QMenu(window))
    , m_itemMenu(new QMenu(window))
{
    FillAddMenu();
    FillItemMenu();
    ConnectKeys();
    connect(m_itemMenu, &QMenu::aboutToShow, this, &BinCommands::Update);
    Update();
}

void BinCommands::Add(QMenu* menu, QString (*text)(), Run run, Question isEnabled,
                      Question isChecked)
{
    QAction* action = menu->addAction(QString());
    action->setCheckable(isChecked != nullptr);
    connect(action, &QAction::triggered, this, run);
    m_commands.push_back({action, text, isEnabled, isChecked});
}

void BinCommands::FillAddMenu()
{
    Add(
        m_addMenu, [] { return tr("Files…"); }, &BinCommands::AddFiles);
    Add(
        m_addMenu, [] { return tr("Folder…"); }, &BinCommands::AddFolder);
    Add(
        m_addMenu, [] { return tr("From a device…"); }, &BinCommands::ImportFromDevice);
}

void BinCommands::FillItemMenu()
{
    using Self = BinCommands;
    Add(
        m_itemMenu, [] { return WithKey(tr("Place at the play head"), Qt::Key_Return); },
        &Self::Place, &Self::HasCurrent);
    m_itemMenu->addSeparator();
    Add(
        m_itemMenu, [] { return WithKey(tr("Set in point"), Qt::Key_I); }, &Self::MarkIn,
        &Self::CanMark);
    Add(
        m_itemMenu, [] { return WithKey(tr("Set out point"), Qt::Key_O); }, &Self::MarkOut,
        &Self::CanMark);
    Add(
        m_itemMenu, [] { return WithKey(tr("Clear in and out point"), Qt::Key_X); },
        &Self::ClearMarks, &Self::HasMarks);
    m_itemMenu->addSeparator();
    Add(
        m_itemMenu, [] { return tr("Make a proxy"); }, &Self::MakeProxies, &Self::CanMakeProxy);
    Add(
        m_itemMenu, [] { return tr("Cancel the proxy"); }, &Self::CancelProxies,
        &Self::IsMakingProxy);
    Add(
        m_itemMenu, [] { return tr("Use the proxy"); }, &Self::SwitchProxies, &Self::HasProxy,
        &Self::UsesProxy);
    m_itemMenu->addSeparator();
    Add(
        m_itemMenu, [] { return tr("Locate…"); }, &Self::Locate, &Self::IsOffline);
    Add(
        m_itemMenu, [] { return tr("Search a folder for offline media…"); }, &Self::SearchFolder,
        &Self::HasAnyOffline);
    m_itemMenu->addSeparator();
    Add(
        m_itemMenu, [] { return WithKey(tr("Remove"), Qt::Key_Delete); }, &Self::Remove,
        &Self::HasUnused);
    Add(
        m_itemMenu, [] { return tr("Remove all unused"); }, &Self::RemoveAllUnused,
        &Self::HasAnyUnused);
}

void BinCommands::ConnectKeys()
{
    const BinView* view = &m_parts.view;
    connect(view, &BinView::PlaceWanted, this, &BinCommands::Place);
    connect(view, &BinView::RemoveWanted, this, &BinCommands::Remove);
    connect(view, &BinView::MarkInWanted, this, &BinCommands::MarkIn);
    connect(view, &BinView::MarkOutWanted, this, &BinCommands::MarkOut);
    connect(view, &BinView::MarksClearWanted, this, &BinCommands::ClearMarks);
}

void BinCommands::Update()
{
    for (const Command& command : m_commands) {
        command.action->setText(command.text());
        if (command.isEnabled)
            command.action->setEnabled((this->*command.isEnabled)());
        if (command.isChecked)
            command.action->setChecked((this->*command.isChecked)());
    }
}

// ---- What is selected

QVector<BinItem> BinCommands::Selected() const
{
    QVector<BinItem> items;
    for (const QString& file : m_parts.view.SelectedFiles())
        items << m_parts.model.Item(file);
    return items;
}

BinItem BinCommands::Current() const
{
    return m_parts.view.currentIndex().data(BinModel::ItemRole).value<BinItem>();
}

bool BinCommands::IsAny(bool (*test)(const BinItem& item)) const
{
    const QVector<BinItem> items = Selected();
    return std::any_of(items.begin(), items.end(), test);
}

QStringList BinCommands::Offline() const
{
    QStringList files;
    for (const BinItem& item : m_parts.model.Items()) {
        if (item.IsOffline())
            files << item.entry.path;
    }
    return files;
}

bool BinCommands::HasCurrent() const
{
    return m_parts.view.currentIndex().isValid();
}

bool BinCommands::CanMark() const
{
    return Current().IsFilm();
}

bool BinCommands::HasMarks() const
{
    return NLERangeLength(Current().entry.marks) > 0;
}

bool BinCommands::HasUnused() const
{
    return IsAny(IsUnused);
}

bool BinCommands::HasAnyUnused() const
{
    const QVector<BinItem>& items = m_parts.model.Items();
    return std::any_of(items.begin(), items.end(), IsUnused);
}

bool BinCommands::IsOffline() const
{
    return HasCurrent() && Current().IsOffline();
}

bool BinCommands::HasAnyOffline() const
{
    const QVector<BinItem>& items = m_parts.model.Items();
    return std::any_of(items.begin(), items.end(), IsOfflineItem);
}

bool BinCommands::CanMakeProxy() const
{
    return IsAny([](const BinItem& item) {
        return item.IsFilm() && item.media.proxy.isEmpty() && item.proxyPercent < 0;
    });
}

bool BinCommands::IsMakingProxy() const
{
    return IsAny([](const BinItem& item) { return item.proxyPercent >= 0; });
}

bool BinCommands::HasProxy() const
{
    return UsesProxy() || IsAny([](const BinItem& item) { return !item.media.proxy.isEmpty(); });
}

bool BinCommands::UsesProxy() const
{
    return IsAny([](const BinItem& item) { return !item.entry.proxy.isEmpty(); });
}

// ---- What is done

void BinCommands::AddFiles()
{
    m_parts.intake.Take(QFileDialog::getOpenFileNames(m_window, tr("Add media")));
}

void BinCommands::AddFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(m_window, tr("Add a folder"));
    if (!folder.isEmpty())
        m_parts.intake.Take({folder});
}

void BinCommands::ImportFromDevice()
{
    if (!m_import) {
        m_import = new ImportDialog(m_window);
        m_import->setAttribute(Qt::WA_DeleteOnClose);
        m_import->setWindowTitle(tr("Import from a device"));
        connect(m_import, &ImportDialog::Imported, &m_parts.intake, &BinIntake::Take);
    }
    m_import->show();
    m_import->raise();
    m_import->activateWindow();
}

void BinCommands::Place()
{
    if (!HasCurrent())
        return;
    const auto clip = m_parts.bin.Place(Current().entry.path, m_parts.player.Position());
    if (clip)
        m_parts.selection.Set({clip});
}

void BinCommands::Mark(bool isIn)
{
    if (!CanMark())
        return;
    const BinItem item = Current();
    const QModelIndex index = m_parts.view.currentIndex();
    const int frame = m_parts.view.ShownFrame(index);
    NLERange marks = item.entry.marks;
    if (NLERangeLength(marks) == 0)
        marks = {0, item.Frames() - 1};
    // A point beyond the other one leaves only itself.
    if (isIn)
        marks = {frame, marks.out < frame ? item.Frames() - 1 : marks.out};
    else
        marks = {marks.in > frame ? 0 : marks.in, frame};
    m_parts.bin.Mark(item.entry.path, marks);
    m_parts.view.ShowFrame(index, frame);
}

void BinCommands::ClearMarks()
{
    if (HasMarks())
        m_parts.bin.Mark(Current().entry.path, BinEntry::kNoMarks);
}

void BinCommands::MakeProxies()
{
    for (const BinItem& item : Selected()) {
        if (item.IsFilm() && item.media.proxy.isEmpty())
            m_parts.proxies.Make(item.entry.path);
    }
}

void BinCommands::CancelProxies()
{
    for (const BinItem& item : Selected())
        m_parts.proxies.Cancel(item.entry.path);
}

void BinCommands::SwitchProxies()
{
    const bool isOn = !UsesProxy();
    QHash<QString, QString> films;
    for (const BinItem& item : Selected())
        films[item.entry.path] = isOn ? item.media.proxy : QString();
    m_parts.bin.UseProxies(films);
}

bool BinCommands::RelinkAll(const QHash<QString, QString>& moved)
{
    if (moved.isEmpty()) {
        Q_EMIT Said(tr("None of the files was found."));
        return false;
    }
    if (!m_parts.bin.Relink(moved)) {
        Q_EMIT Said(tr("The files that were found cannot be read."));
        return false;
    }
    Q_EMIT Said(tr("%n file(s) found.", nullptr, moved.size()));
    return true;
}

bool BinCommands::Relink(const QString& file, const QString& found)
{
    return RelinkAll(FindMovedMedia(file, found, Offline()));
}

void BinCommands::Locate()
{
    const QString file = Current().entry.path;
    const QString name = QFileInfo(file).fileName();
    const QString found =
        QFileDialog::getOpenFileName(m_window, tr("Where is %1?").arg(name), QFileInfo(file).path(),
                                     tr("%1 (%1);;All files (*)").arg(name));
    if (!found.isEmpty())
        Relink(file, found);
}

void BinCommands::SearchFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(m_window, tr("Folder with the media"));
    if (!folder.isEmpty())
        RelinkAll(FindMediaIn(folder, Offline()));
}

void BinCommands::Remove()
{
    m_parts.bin.Remove(m_parts.view.SelectedFiles());
}

void BinCommands::RemoveAllUnused()
{
    m_parts.bin.Remove(m_parts.bin.Files());
}
