// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/ExportDialog.h"

#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLECommon.h"
#include "EngineApi/NLEKey.h"
#include "Host/Editor/Export/ExportCheck.h"
#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Export/ExportQueueView.h"
#include "Host/Editor/Export/StillPicture.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"
#include "Host/EncodePresets.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/TimecodeEdit.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStandardPaths>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int kLongestSide = 16384;
constexpr int kQueueHeight = 220;
constexpr int kWidth = 560;
constexpr int kPathWidth = 260;
constexpr NLERational kRates[] = {{24000, 1001}, {24, 1}, {25, 1},       {30000, 1001},
                                  {30, 1},       {50, 1}, {60000, 1001}, {60, 1}};
constexpr int kSampleRates[] = {44100, 48000, 96000};

/// A row of widgets for a form, which runs as the language does.
QWidget* MakeRow(std::initializer_list<QWidget*> widgets)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return row;
}

/// Two numbers of which the first is always at the left.
QWidget* MakePair(QWidget* first, const QString& between, QWidget* second)
{
    auto* pair = new QWidget;
    auto* layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : {first, static_cast<QWidget*>(new QLabel(between)), second})
        layout->addWidget(widget);
    pair->setLayoutDirection(Qt::LeftToRight);
    return pair;
}

QString HardwareNote()
{
    int decoding = NLEHardware_Never;
    NLEComPtr<INLEProperties> settings;
    const auto config = EngineProvider().GetSystemConfig();
    if (config && config->GetProperties(settings.put()) == S_OK)
        settings->GetInt(NLEKey::System::kHardwareDecoding, &decoding);
    return decoding == NLEHardware_Never
               ? ExportDialog::tr("The processor encodes and decodes.")
               : ExportDialog::tr("The processor encodes; the graphics hardware helps to decode.");
}

QString WithSuffix(const QString& path, const QString& suffix)
{
    const QFileInfo file(path);
    return suffix.isEmpty() ? path : file.dir().filePath(file.completeBaseName() + '.' + suffix);
}

/// From the one to the other, whichever is first, as far as \a length frames go.
NLERange RangeOf(int in, int out, int length)
{
    const int end = std::max(length - 1, 0);
    const auto [first, last] = std::minmax({std::min(in, end), std::min(out, end)});
    return {first, last};
}

} // namespace

ExportDialog::ExportDialog(Project& project, MediaPlayer& player, ExportQueue& queue,
                           QWidget* parent)
    : QDialog(parent)
    , m_project(project)
    , m_player(player)
    , m_queue(queue)
    , m_encoder(EngineProvider().CreateMediaEncoder())
    , m_check(new ExportCheck(this))
    , m_preset(new QComboBox(this))
    , m_path(new QLineEdit(this))
    , m_complaint(new QLabel(this))
    , m_add(new QPushButton(tr("Add to the queue"), this))
{
    setWindowTitle(tr("Export"));
    auto* column = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    column->addLayout(form);
    AddPresets(*form);
    AddFile(*form);
    AddFormat(*form);
    AddRange(*form);
    AddNotes(*form);
    column->addWidget(MakeButtons());
    auto* films = new QScrollArea(this);
    films->setWidget(new ExportQueueView(queue));
    films->setWidgetResizable(true);
    films->setMinimumHeight(kQueueHeight);
    films->setAccessibleName(tr("Films"));
    column->addWidget(films, 1);
    resize(kWidth, sizeHint().height());
    connect(m_check, &ExportCheck::Told, this, &ExportDialog::ShowComplaint);
    connect(&project, &Project::Replaced, this, &ExportDialog::TakeSize);
    connect(&project, &Project::Replaced, this, &ExportDialog::TakeLength);
    connect(&project, &Project::NodeChanged, this, [this](const NLEComPtr<INLETimeline>& node) {
        if (node == m_project.Node())
            TakeSize();
    });
    TakeSize();
    TakeLength();
    TakePreset();
}

void ExportDialog::AddPresets(QFormLayout& form)
{
    for (const EncodePresets::Preset& preset : EncodePresets::All(m_encoder))
        m_preset->addItem(preset.title, preset.name);
    form.addRow(tr("Preset"), m_preset);
    connect(m_preset, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExportDialog::TakePreset);
}

void ExportDialog::AddFile(QFormLayout& form)
{
    const QDir films(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    m_path->setText(QDir::toNativeSeparators(films.filePath(tr("film"))));
    m_path->setMinimumWidth(kPathWidth);
    m_path->setLayoutDirection(Qt::LeftToRight); // as paths are
    auto* pick = new QToolButton(this);
    pick->setText(QStringLiteral("…"));
    pick->setAccessibleName(tr("Choose a file"));
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path, 1);
    layout->addWidget(pick);
    form.addRow(tr("File"), row);
    m_path->setAccessibleName(tr("File"));
    connect(pick, &QToolButton::clicked, this, &ExportDialog::PickFile);
}

void ExportDialog::AddFormat(QFormLayout& form)
{
    m_width = MakeSide(tr("Width"));
    m_height = MakeSide(tr("Height"));
    m_rate = new QComboBox(this);
    m_rate->addItem(tr("As the project"));
    for (const NLERational& rate : kRates)
        m_rate->addItem(tr("%1 fps").arg(QLocale().toString(NLECommon::ToDouble(rate), 'g', 5)),
                        QVariant::fromValue(QSize(int(rate.num), int(rate.den))));
    m_sampleRate = new QComboBox(this);
    m_sampleRate->addItem(tr("As the project"), 0);
    for (const int rate : kSampleRates)
        m_sampleRate->addItem(tr("%1 Hz").arg(rate), rate);
    form.addRow(tr("Size"), MakeRow({MakePair(m_width, QStringLiteral("×"), m_height)}));
    form.addRow(tr("Frame rate"), m_rate);
    form.addRow(tr("Sound"), m_sampleRate);
    for (QComboBox* box : {m_rate, m_sampleRate})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ExportDialog::Check);
}

QSpinBox* ExportDialog::MakeSide(const QString& name)
{
    auto* box = new QSpinBox(this);
    box->setRange(2, kLongestSide);
    box->setAccessibleName(name);
    box->setToolTip(name);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExportDialog::Check);
    return box;
}

TimecodeEdit* ExportDialog::MakePoint(const QString& name)
{
    auto* point = new TimecodeEdit(this);
    point->setAccessibleName(name);
    point->setToolTip(name);
    return point;
}

void ExportDialog::AddRange(QFormLayout& form)
{
    m_all = new QRadioButton(tr("All"), this);
    m_part = new QRadioButton(tr("From in to out"), this);
    m_first = MakePoint(tr("In point"));
    m_last = MakePoint(tr("Out point"));
    m_all->setChecked(true);
    for (TimecodeEdit* box : {m_first, m_last}) {
        box->setEnabled(false);
        connect(m_part, &QRadioButton::toggled, box, &QWidget::setEnabled);
    }
    auto* row = MakeRow({m_all, m_part, MakePair(m_first, QStringLiteral("–"), m_last)});
    form.addRow(tr("Range"), row);
}

void ExportDialog::AddNotes(QFormLayout& form)
{
    auto* hardware = new QLabel(HardwareNote(), this);
    hardware->setObjectName(QStringLiteral("CommonLib_Hint"));
    form.addRow(tr("Hardware"), hardware);
    m_complaint->setWordWrap(true);
    m_complaint->setObjectName(QStringLiteral("Host_Complaint"));
    form.addRow(m_complaint);
}

QWidget* ExportDialog::MakeButtons()
{
    auto* still = new QPushButton(tr("Still picture…"), this);
    auto* close = new QPushButton(tr("Close"), this);
    still->setToolTip(tr("Writes the frame under the play head"));
    still->setAutoDefault(false);
    close->setAutoDefault(false);
    m_add->setDefault(true);
    connect(m_add, &QPushButton::clicked, this, &ExportDialog::AddToQueue);
    connect(still, &QPushButton::clicked, this, &ExportDialog::AskForStill);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    return MakeRow({m_add, still, close});
}

void ExportDialog::showEvent(QShowEvent* event)
{
    // Clips may have come since it was shown last.
    if (m_all->isChecked())
        TakeLength();
    QDialog::showEvent(event);
}

void ExportDialog::TakeSize()
{
    const QSize size = m_project.Timeline()->GetProjectResolution();
    if (size == m_projectSize)
        return; // what was chosen stays
    m_projectSize = size;
    m_width->setValue(size.width());
    m_height->setValue(size.height());
}

void ExportDialog::TakeLength()
{
    for (TimecodeEdit* point : {m_first, m_last})
        point->SetFrameRate(m_project.FrameRate());
    m_first->SetFrame(0);
    m_last->SetFrame(qMax(m_project.Length() - 1, 0));
    m_all->setChecked(true);
}

void ExportDialog::SetRange(int first, int last)
{
    m_part->setChecked(true);
    m_first->SetFrame(first);
    m_last->SetFrame(last);
}

void ExportDialog::SetPath(const QString& path)
{
    m_path->setText(QDir::toNativeSeparators(path));
}

void ExportDialog::TakePreset()
{
    const auto settings =
        EncodePresets::Settings(EngineProvider(), m_encoder, m_preset->currentData().toString());
    if (settings)
        SetPath(WithSuffix(QDir::fromNativeSeparators(m_path->text()),
                           EncodePresets::Suffix(m_encoder, settings)));
    Check();
}

void ExportDialog::PickFile()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Export"), m_path->text());
    if (path.isEmpty())
        return;
    SetPath(path);
    m_mayReplace = path; // it was asked for
}

/// Asks before a file is written over, once for what was chosen in a file dialog.
bool ExportDialog::MayWrite(const QString& path)
{
    const auto& jobs = m_queue.Jobs();
    const bool isOrdered = std::any_of(jobs.begin(), jobs.end(), [&](const ExportQueue::Job& job) {
        const bool isOpen =
            job.state == ExportQueue::State::Waiting || job.state == ExportQueue::State::Running;
        return isOpen && QFileInfo(job.order.path) == QFileInfo(path);
    });
    if (isOrdered) {
        m_complaint->setText(tr("%1 is in the queue already.").arg(QFileInfo(path).fileName()));
        return false;
    }
    if (!QFileInfo::exists(path) || std::exchange(m_mayReplace, QString()) == path)
        return true;
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    tr("%1 is there already. Replace it?").arg(QFileInfo(path).fileName()),
                    QMessageBox::Yes | QMessageBox::No, this);
    return box.exec() == QMessageBox::Yes;
}

ExportOrder ExportDialog::Order() const
{
    const tagNLEProjectProfile profile = m_project.Timeline()->GetProjectProfile();
    ExportOrder order;
    order.path = QDir::fromNativeSeparators(m_path->text());
    order.preset = m_preset->currentData().toString();
    order.settings.frameSize = {m_width->value(), m_height->value()};
    const QSize rate = m_rate->currentData().toSize();
    order.settings.frameRate =
        rate.isEmpty() ? profile.frameRate : NLERational{rate.width(), rate.height()};
    const int sampleRate = m_sampleRate->currentData().toInt();
    order.settings.sampleRate = sampleRate > 0 ? sampleRate : profile.sampleRate;
    order.settings.channels = profile.channels;
    order.isPart = m_part->isChecked();
    if (order.isPart)
        order.settings.range = RangeOf(m_first->Frame(), m_last->Frame(), m_project.Length());
    return order;
}

void ExportDialog::TakeChoices(const ExportDialog& other)
{
    m_preset->setCurrentIndex(other.m_preset->currentIndex());
    m_path->setText(other.m_path->text());
    m_width->setValue(other.m_width->value());
    m_height->setValue(other.m_height->value());
    m_rate->setCurrentIndex(other.m_rate->currentIndex());
    m_sampleRate->setCurrentIndex(other.m_sampleRate->currentIndex());
    m_first->SetFrame(other.m_first->Frame());
    m_last->SetFrame(other.m_last->Frame());
    m_part->setChecked(other.m_part->isChecked());
}

void ExportDialog::Check()
{
    // Not before all widgets are there.
    if (!m_last || m_preset->count() == 0)
        return;
    m_check->Ask(Order());
}

void ExportDialog::ShowComplaint(const QString& complaint)
{
    m_complaint->setText(complaint);
    m_add->setEnabled(complaint.isEmpty());
}

void ExportDialog::AddToQueue()
{
    const ExportOrder order = Order();
    if (MayWrite(order.path) && m_queue.Add(m_project.Node(), order) == 0)
        m_complaint->setText(tr("The project cannot be copied."));
}

void ExportDialog::AskForStill()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Still picture"),
        QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) +
            tr("/frame %1.png").arg(m_player.Position()),
        tr("Pictures (*.png *.jpg *.tif *.bmp)"));
    if (path.isEmpty())
        return;
    const QString complaint = StillPicture::Save(m_project.Node(), m_player.Position(), path);
    if (!complaint.isEmpty())
        QMessageBox::warning(this, tr("Still picture"), complaint);
}
