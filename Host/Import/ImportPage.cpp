// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportPage.h"

#include "CommonLib/StringOperation.h"
#include "Host/Import/ImportTarget.h"
#include "Host/Import/ImportTree.h"
#include "Host/Widgets/KeepTranslated.h"

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
#include <unordered_set>
#include <utility>

namespace {

constexpr int kListEvery = 3000; // ms
constexpr int kProgressSteps = 1000;
constexpr int kProgressWidth = 220;

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
    , m_folderLabel(new QLabel(this))
    , m_folder(new QLineEdit(this))
    , m_folderButton(new QPushButton(this))
    , m_deleteBox(new QCheckBox(this))
    , m_status(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancelButton(new QPushButton(this))
    , m_importButton(new QPushButton(this))
{
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
    SetState(State::NoDevice);
    KeepTranslated(this, [this] { SetTexts(); });
}

void ImportPage::SetTexts()
{
    m_deviceBox->setAccessibleName(tr("Device"));
    for (int i = 0; i < m_devices.size(); ++i)
        m_deviceBox->setItemText(i, ShownName(m_devices[i].name));
    m_refreshButton->setText(tr("Refresh"));
    m_folderLabel->setText(tr("Import into"));
    m_folder->setAccessibleName(tr("Folder to import into"));
    m_folderButton->setText(tr("Choose…"));
    m_deleteBox->setText(tr("Delete from the device afterwards"));
    m_progress->setAccessibleName(tr("Progress of the import"));
    m_cancelButton->setText(tr("Cancel"));
    m_importButton->setText(tr("Import"));
    ShowNotice();
    ShowStatus();
}

QString ImportPage::ShownName(const QString& deviceName)
{
    return deviceName.isEmpty() ? tr("Unnamed device") : deviceName;
}

void ImportPage::BuildLayout()
{
    auto* devices = new QHBoxLayout;
    devices->addWidget(m_deviceBox, 1);
    devices->addWidget(m_refreshButton);
    m_stack->addWidget(m_notice);
    m_stack->addWidget(m_tree);
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_folderLabel);
    folder->addWidget(m_folder, 1);
    folder->addWidget(m_folderButton);
    // A long text must not make the window wider.
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* actions = new QHBoxLayout;
    actions->addWidget(m_deleteBox);
    actions->addStretch(1);
    actions->addWidget(m_progress);
    actions->addWidget(m_cancelButton);
    actions->addWidget(m_importButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(devices);
    layout->addWidget(m_stack, 1);
    layout->addLayout(folder);
    layout->addWidget(m_status);
    layout->addLayout(actions);
}

void ImportPage::Connect()
{
    connect(m_refreshButton, &QPushButton::clicked, &m_session, &ImportSession::List);
    connect(&m_listTimer, &QTimer::timeout, this, [this] {
        if (isVisible() && !std::exchange(m_isListing, true))
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
    connect(&m_session, &ImportSession::InUse, this, [this] { SetState(State::InUse); });
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

void ImportPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ShowStatus();
}

void ImportPage::SetState(State state)
{
    m_state = state;
    const bool isWaiting = state == State::NoDevice || state == State::Removed;
    const bool hasNotice = isWaiting || state == State::Opening || IsRefused();
    ShowNotice();
    m_stack->setCurrentWidget(hasNotice ? static_cast<QWidget*>(m_notice) : m_tree);
    // A device may come at any time.
    const bool isListed = state != State::Importing;
    if (isListed != m_listTimer.isActive())
        isListed ? m_listTimer.start() : m_listTimer.stop();
    m_progress->setVisible(state == State::Importing);
    m_cancelButton->setVisible(state == State::Importing);
    UpdateButtons();
}

void ImportPage::ShowNotice()
{
    const QString name = ShownName(m_chosenName);
    QString title;
    QString text;
    switch (m_state) {
    case State::NoDevice:
        title = tr("No device found");
        text = tr("Connect a camera, a phone or a card reader, switch it on and unlock it.");
        break;
    case State::Opening:
        title = tr("Opening %1…").arg(name);
        break;
    case State::Refused:
        title = tr("%1 cannot be opened").arg(name);
        text = tr("Unlock the device and allow access to its files, then choose it again.");
        break;
    case State::InUse:
        title = tr("%1 cannot be opened").arg(name);
        text = tr("Another window has a device open. Close that window, then choose this device "
                  "again.");
        break;
    case State::Removed:
        title = tr("%1 was removed").arg(name);
        text = tr("Connect it again to go on.");
        break;
    default:
        return;
    }
    m_notice->setText(QStringLiteral("<p style='font-size:large'><b>%1</b></p><p>%2</p>")
                          .arg(title.toHtmlEscaped(), text.toHtmlEscaped()));
}

void ImportPage::Say(Text status)
{
    m_statusText = std::move(status);
    ShowStatus();
}

void ImportPage::ShowStatus()
{
    const QString text = m_statusText ? m_statusText() : QString();
    m_status->setText(StringOperation::GetElidedString(m_status->font(), m_status->width(), text,
                                                       Qt::ElideRight));
    m_status->setToolTip(m_status->text() == text ? QString() : text);
}

QString ImportPage::AfterResult(const QString& text) const
{
    return m_lastResult ? m_lastResult() + ' ' + text : text;
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
        Say([this, count = files.size(), bytes] {
            return AfterResult(
                tr("Chosen files: %1 (%2)").arg(locale().toString(count), SizeText(*this, bytes)));
        });
    else if (m_state == State::Reading)
        Say([this, count = m_tree->FileCount()] {
            return tr("Reading the content… %1 files").arg(locale().toString(count));
        });
    else if (m_state == State::Ready)
        Say(m_idleText);
}

void ImportPage::TakeDevices(const QVector<ImportDevice>& devices)
{
    m_isListing = false;
    const bool isNew = devices != m_devices;
    if (isNew)
        ShowDevices(devices);
    const auto found =
        std::find_if(devices.begin(), devices.end(),
                     [this](const ImportDevice& device) { return device.id == m_chosen; });
    const int chosen = found == devices.end() ? -1 : static_cast<int>(found - devices.begin());
    m_deviceBox->setCurrentIndex(chosen);
    const bool isShown = m_state != State::NoDevice && m_state != State::Removed;
    if (isShown && chosen < 0)
        IsRefused() ? SetState(State::NoDevice) : TakeRemoval();
    else if (!isShown && chosen >= 0)
        Choose(chosen); // it is back
    else if (m_state == State::NoDevice && !devices.isEmpty())
        Choose(0);
    // The word that a device was removed stays until it is back or another is chosen.
    if (isNew)
        UpdateButtons();
}

void ImportPage::ShowDevices(const QVector<ImportDevice>& devices)
{
    m_devices = devices;
    const QSignalBlocker blocker(m_deviceBox);
    m_deviceBox->clear();
    for (const ImportDevice& device : devices)
        m_deviceBox->addItem(ShownName(device.name));
}

void ImportPage::Choose(int index)
{
    m_deviceBox->setCurrentIndex(index);
    const ImportDevice device = m_devices.value(index);
    m_chosen = device.id;
    m_chosenName = device.name;
    m_lastResult = nullptr;
    OpenChosen();
}

void ImportPage::OpenChosen(const QVector<std::wstring>& toDelete)
{
    m_leftToImport.clear();
    m_session.Stop(); // the content of another device may be on its way
    if (!toDelete.isEmpty())
        m_session.Delete(toDelete);
    m_tree->Clear();
    Say(nullptr);
    SetState(State::Opening);
    m_session.Open(m_chosen);
}

void ImportPage::TakeContentEnd(bool isWhole)
{
    if (m_state != State::Reading)
        return;
    m_idleText = [this, isWhole, count = m_tree->FileCount()] {
        return AfterResult(isWhole
                               ? tr("%1 files on the device").arg(locale().toString(count))
                               : tr("The device stopped answering; this may not be all of it."));
    };
    m_tree->Mark(m_leftToImport);
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
        Say([] { return tr("Nothing can be written into this folder."); });
        return false;
    }
    const auto room = static_cast<quint64>(QStorageInfo(folder).bytesAvailable());
    if (room >= m_bytesToImport)
        return true;
    Say([this, room] {
        return tr("This folder has room for %1 only.").arg(SizeText(*this, room));
    });
    return false;
}

void ImportPage::TakeProgress(quint64 bytes)
{
    if (m_state != State::Importing)
        return;
    const double share =
        m_bytesToImport > 0 ? static_cast<double>(bytes) / static_cast<double>(m_bytesToImport) : 0;
    m_progress->setValue(static_cast<int>(std::min(share, 1.0) * kProgressSteps));
    Say([this, bytes] {
        return tr("Importing… %1 of %2")
            .arg(SizeText(*this, bytes), SizeText(*this, m_bytesToImport));
    });
}

void ImportPage::TakeResult(const ImportResult& result)
{
    m_lastResult = [this, result, wasRemoved = m_state == State::Removed] {
        QString count = tr("Imported files: %1 of %2.")
                            .arg(locale().toString(result.importedIds.size()),
                                 locale().toString(result.wanted));
        if (wasRemoved)
            return tr("The device was removed during the import.") + ' ' + count;
        if (result.isStopped)
            return tr("Cancelled.") + ' ' + count;
        if (result.failed.isEmpty())
            return count;
        return count + ' ' + tr("Not imported: %1").arg(QFileInfo(result.failed[0]).fileName());
    };
    m_idleText = m_lastResult;
    Say(m_lastResult);
    if (!result.imported.isEmpty())
        Q_EMIT Imported(result.imported);
    if (m_state != State::Importing)
        return;
    const QVector<std::wstring> left = NotImported(result);
    if (m_deleteBox->isChecked() && !result.importedIds.isEmpty()) {
        OpenChosen(result.importedIds); // shows what is left
        m_leftToImport = left;
        return;
    }
    m_tree->UnmarkAll(); // what is imported is not wanted again
    m_tree->Mark(left);
    SetState(State::Ready);
}

QVector<std::wstring> ImportPage::NotImported(const ImportResult& result) const
{
    const std::unordered_set<std::wstring> imported(result.importedIds.begin(),
                                                    result.importedIds.end());
    QVector<std::wstring> left;
    for (const ImportTree::File& file : m_tree->MarkedFiles()) {
        if (imported.count(file.id) == 0)
            left.append(file.id);
    }
    return left;
}

void ImportPage::TakeRemoval()
{
    m_session.Stop();
    m_session.Close();
    m_tree->Clear();
    Say(nullptr);
    SetState(State::Removed);
}
