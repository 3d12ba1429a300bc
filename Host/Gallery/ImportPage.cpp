// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/ImportPage.h"

#include "Host/Gallery/ImportTarget.h"
#include "Host/Gallery/ImportTree.h"
#include "Host/Gallery/KeepTranslated.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kListEvery = 3000; // ms
constexpr int kProgressSteps = 1000;
constexpr int kProgressWidth = 220;

// The marks of the toolkit's own style are drawn too dark to be seen on a dark surface.
constexpr char kMarks[] = R"(
    QTreeView::indicator, QCheckBox::indicator {
        width: 12px; height: 12px;
        background-color: #1b1d20; border: 1px solid #9299a1; border-radius: 3px;
    }
    QTreeView::indicator:checked, QCheckBox::indicator:checked {
        background-color: #4da3ff; border-color: #4da3ff;
    }
    QTreeView::indicator:indeterminate {
        background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.35 #1b1d20,
            stop: 0.36 #4da3ff, stop: 0.64 #4da3ff, stop: 0.65 #1b1d20);
    }
    QTreeView::indicator:disabled, QCheckBox::indicator:disabled { border-color: #5f656d; }
)";

QString SizeText(const QWidget& widget, quint64 bytes)
{
    return widget.locale().formattedDataSize(static_cast<qint64>(bytes), 1);
}

} // namespace

ImportPage::ImportPage(QWidget* parent)
    : QWidget(parent)
    , m_deviceBox(new QComboBox(this))
    , m_refreshButton(new QPushButton(this))
    , m_stack(new QStackedWidget(this))
    , m_notice(new QLabel(this))
    , m_tree(new ImportTree(this))
    , m_folder(new QLineEdit(this))
    , m_folderButton(new QPushButton(this))
    , m_deleteBox(new QCheckBox(this))
    , m_status(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancelButton(new QPushButton(this))
    , m_importButton(new QPushButton(this))
{
    setStyleSheet(kMarks);
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setWordWrap(true);
    m_notice->setTextFormat(Qt::RichText);
    m_folder->setText(
        QDir::toNativeSeparators(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)));
    m_progress->setRange(0, kProgressSteps);
    m_progress->setFixedWidth(kProgressWidth);
    m_importButton->setDefault(true);
    m_listTimer.setInterval(kListEvery);
    BuildLayout();
    Connect();
    KeepTranslated(this, [this] { SetTexts(); });
}

void ImportPage::SetTexts()
{
    m_refreshButton->setText(tr("Refresh"));
    m_folderButton->setText(tr("Choose…"));
    m_deleteBox->setText(tr("Delete from the device afterwards"));
    m_cancelButton->setText(tr("Cancel"));
    m_importButton->setText(tr("Import"));
    m_deviceBox->setAccessibleName(tr("Device"));
    m_folder->setAccessibleName(tr("Folder to import into"));
    m_progress->setAccessibleName(tr("Progress of the import"));
    SetState(m_state);
}

void ImportPage::BuildLayout()
{
    auto* devices = new QHBoxLayout;
    devices->addWidget(m_deviceBox, 1);
    devices->addWidget(m_refreshButton);
    m_stack->addWidget(m_notice);
    m_stack->addWidget(m_tree);
    auto* folder = new QHBoxLayout;
    auto* into = new QLabel(this);
    KeepTranslated(into, [into] { into->setText(tr("Import into")); });
    folder->addWidget(into);
    folder->addWidget(m_folder, 1);
    folder->addWidget(m_folderButton);
    auto* actions = new QHBoxLayout;
    actions->addWidget(m_status, 1);
    actions->addWidget(m_deleteBox);
    actions->addWidget(m_progress);
    actions->addWidget(m_cancelButton);
    actions->addWidget(m_importButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(devices);
    layout->addWidget(m_stack, 1);
    layout->addLayout(folder);
    layout->addLayout(actions);
}

void ImportPage::Connect()
{
    connect(m_refreshButton, &QPushButton::clicked, &m_session, &ImportSession::List);
    connect(&m_listTimer, &QTimer::timeout, this, [this] {
        if (isVisible())
            m_session.List();
    });
    connect(m_deviceBox, qOverload<int>(&QComboBox::activated), this, &ImportPage::Choose);
    connect(m_folderButton, &QPushButton::clicked, this, &ImportPage::ChooseFolder);
    connect(m_folder, &QLineEdit::textChanged, this, &ImportPage::UpdateButtons);
    connect(m_importButton, &QPushButton::clicked, this, &ImportPage::StartImport);
    connect(m_cancelButton, &QPushButton::clicked, &m_session, &ImportSession::Stop);
    connect(m_tree, &ImportTree::MarksChanged, this, &ImportPage::UpdateButtons);
    connect(m_tree, &ImportTree::ThumbnailsWanted, &m_session, &ImportSession::ReadThumbnails);

    connect(&m_session, &ImportSession::DevicesListed, this, &ImportPage::TakeDevices);
    connect(&m_session, &ImportSession::Opened, this,
            [this](bool isOpen) { SetState(isOpen ? State::Reading : State::Refused); });
    connect(&m_session, &ImportSession::ObjectsRead, m_tree, &ImportTree::AddObjects);
    connect(&m_session, &ImportSession::ContentRead, this, &ImportPage::TakeContentEnd);
    connect(&m_session, &ImportSession::ThumbnailRead, m_tree, &ImportTree::SetThumbnail);
    connect(&m_session, &ImportSession::Progressed, this, &ImportPage::TakeProgress);
    connect(&m_session, &ImportSession::Imported, this, &ImportPage::TakeResult);
    connect(&m_session, &ImportSession::Removed, this, &ImportPage::TakeRemoval);
}

void ImportPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_state == State::NoDevice)
        m_session.List(); // the first look at the devices, not at the start of the program
}

void ImportPage::SetState(State state)
{
    m_state = state;
    const QString name = m_deviceBox->currentText();
    switch (state) {
    case State::NoDevice:
        ShowNotice(tr("No device found"), tr("Connect a camera, a phone or a card reader, switch "
                                             "it on and unlock it."));
        break;
    case State::Opening:
        ShowNotice(tr("Opening %1…").arg(name), QString());
        break;
    case State::Refused:
        ShowNotice(tr("%1 cannot be opened").arg(name),
                   tr("Unlock the device and allow access to its files, then choose it again."));
        break;
    case State::Removed:
        ShowNotice(tr("%1 was removed").arg(name), tr("Connect it again to go on."));
        break;
    default:
        m_stack->setCurrentWidget(m_tree);
    }
    const bool isWaiting = state == State::NoDevice || state == State::Removed;
    if (isWaiting != m_listTimer.isActive())
        isWaiting ? m_listTimer.start() : m_listTimer.stop();
    m_progress->setVisible(state == State::Importing);
    m_cancelButton->setVisible(state == State::Importing);
    UpdateButtons();
}

void ImportPage::ShowNotice(const QString& title, const QString& text)
{
    m_notice->setText(QStringLiteral("<p style='font-size:17px'><b>%1</b></p><p>%2</p>")
                          .arg(title.toHtmlEscaped(), text.toHtmlEscaped()));
    m_stack->setCurrentWidget(m_notice);
}

void ImportPage::UpdateButtons()
{
    const bool isImporting = m_state == State::Importing;
    const bool hasContent = m_state == State::Reading || m_state == State::Ready;
    m_deviceBox->setEnabled(!isImporting && !m_devices.isEmpty());
    m_refreshButton->setEnabled(!isImporting);
    m_tree->setEnabled(!isImporting);
    m_folder->setEnabled(!isImporting);
    m_folderButton->setEnabled(!isImporting);
    m_deleteBox->setVisible(hasContent);
    const QVector<ImportTree::File> files =
        hasContent ? m_tree->MarkedFiles() : QVector<ImportTree::File>();
    m_importButton->setEnabled(m_state == State::Ready && !files.isEmpty() &&
                               !m_folder->text().trimmed().isEmpty());
    quint64 bytes = 0;
    for (const ImportTree::File& file : files)
        bytes += file.size;
    if (!files.isEmpty())
        m_status->setText(
            tr("Chosen files: %1 (%2)").arg(files.size()).arg(SizeText(*this, bytes)));
    else if (m_state == State::Reading)
        m_status->setText(tr("Reading the content… %1 files").arg(m_tree->FileCount()));
    else if (m_state == State::Ready)
        m_status->setText(m_idleText);
}

void ImportPage::TakeDevices(const QVector<ImportDevice>& devices)
{
    m_devices = devices;
    const QSignalBlocker blocker(m_deviceBox);
    m_deviceBox->clear();
    for (const ImportDevice& device : devices)
        m_deviceBox->addItem(device.name.isEmpty() ? tr("Unnamed device") : device.name);
    const auto found =
        std::find_if(devices.begin(), devices.end(),
                     [this](const ImportDevice& device) { return device.id == m_chosen; });
    const int chosen = found == devices.end() ? -1 : static_cast<int>(found - devices.begin());
    m_deviceBox->setCurrentIndex(chosen);
    const bool isShown = m_state != State::NoDevice && m_state != State::Removed;
    if (isShown && chosen < 0)
        m_state == State::Refused ? SetState(State::NoDevice) : TakeRemoval();
    else if (!isShown && chosen >= 0)
        Choose(chosen); // it is back
    else if (m_state == State::NoDevice && !devices.isEmpty())
        Choose(0);
    // The word that a device was removed stays until it is back or another is chosen.
    UpdateButtons();
}

void ImportPage::Choose(int index)
{
    m_deviceBox->setCurrentIndex(index);
    m_chosen = m_devices.value(index).id;
    m_lastResult.clear();
    OpenChosen();
}

void ImportPage::OpenChosen(const QVector<std::wstring>& toDelete)
{
    m_session.Stop(); // the content of another device may be on its way
    if (!toDelete.isEmpty())
        m_session.Delete(toDelete);
    m_tree->Clear();
    m_status->clear();
    SetState(State::Opening);
    m_session.Open(m_chosen);
}

void ImportPage::TakeContentEnd(bool isWhole)
{
    if (m_state != State::Reading)
        return;
    const QString text = isWhole ? tr("%1 files on the device").arg(m_tree->FileCount())
                                 : tr("The device stopped answering; this may not be all of it.");
    m_idleText = (m_lastResult + ' ' + text).trimmed();
    SetState(State::Ready);
}

void ImportPage::ChooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder to import into"), m_folder->text());
    if (!folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
}

void ImportPage::StartImport()
{
    const QString folder = QDir::fromNativeSeparators(m_folder->text().trimmed());
    QVector<ImportFile> files;
    QSet<QString> taken;
    m_bytesToImport = 0;
    for (const ImportTree::File& file : m_tree->MarkedFiles()) {
        files.append({file.id, FreePath(folder, file.name, taken), file.size});
        m_bytesToImport += file.size;
    }
    if (!CanImportInto(folder))
        return;
    SetState(State::Importing);
    TakeProgress(0);
    m_session.Import(files);
}

bool ImportPage::CanImportInto(const QString& folder)
{
    if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable()) {
        m_status->setText(tr("Nothing can be written into this folder."));
        return false;
    }
    const auto room = static_cast<quint64>(QStorageInfo(folder).bytesAvailable());
    if (room >= m_bytesToImport)
        return true;
    m_status->setText(tr("This folder has room for %1 only.").arg(SizeText(*this, room)));
    return false;
}

void ImportPage::TakeProgress(quint64 bytes)
{
    if (m_state != State::Importing)
        return;
    const double share =
        m_bytesToImport > 0 ? static_cast<double>(bytes) / static_cast<double>(m_bytesToImport) : 0;
    m_progress->setValue(static_cast<int>(std::min(share, 1.0) * kProgressSteps));
    m_status->setText(
        tr("Importing… %1 of %2").arg(SizeText(*this, bytes), SizeText(*this, m_bytesToImport)));
}

void ImportPage::TakeResult(const ImportResult& result)
{
    const QString count = tr("Imported files: %1 of %2.").arg(result.imported).arg(result.wanted);
    if (m_state == State::Removed)
        m_lastResult = tr("The device was removed during the import.") + ' ' + count;
    else if (result.isStopped)
        m_lastResult = tr("Cancelled.") + ' ' + count;
    else if (!result.failed.isEmpty())
        m_lastResult =
            count + ' ' + tr("Not imported: %1").arg(QFileInfo(result.failed[0]).fileName());
    else
        m_lastResult = count;
    m_idleText = m_lastResult;
    m_status->setText(m_lastResult);
    if (m_state == State::Importing) {
        SetState(State::Ready);
        if (m_deleteBox->isChecked() && !result.importedIds.isEmpty())
            OpenChosen(result.importedIds); // shows what is left
        else
            m_tree->UnmarkAll(); // what is imported is not wanted again
    }
}

void ImportPage::TakeRemoval()
{
    m_session.Stop();
    m_session.Close();
    m_tree->Clear();
    m_status->clear();
    SetState(State::Removed);
}
