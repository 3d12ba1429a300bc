// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/PlayerPage.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Gallery/TestCard.h"
#include "Host/Widgets/KeepTranslated.h"
#include "Host/Widgets/LevelMeter.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"
#include "Host/Widgets/PlayerScreen.h"
#include "Host/Widgets/SeekBar.h"
#include "Host/Widgets/Symbols.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kGap = 8;
constexpr int kVolumeWidth = 90;
constexpr int kFullVolume = 100;
constexpr int kSliderHeight = 18;
constexpr double kRates[] = {-8, -4, -2, -1, 0.25, 0.5, 1, 1.5, 2, 4, 8};
constexpr double kUsualRate = 1;
constexpr PicturePlacement::Scale kScales[] = {
    PicturePlacement::Scale::Fit, PicturePlacement::Scale::Fill, PicturePlacement::Scale::Pixels};
const QColor kLine(0xd5, 0xd8, 0xdc);

/// What the meter shows of nothing at all, so that one sees it move.
NLEPlayerLevels SampleLevels()
{
    NLEPlayerLevels levels{};
    levels.channels = 2;
    const float peaks[] = {0.63F, 0.45F}; // -4 and -7 dB
    const float means[] = {0.16F, 0.11F}; // -16 and -19 dB
    for (int channel = 0; channel < levels.channels; ++channel) {
        levels.peak[channel] = peaks[channel];
        levels.rms[channel] = means[channel];
    }
    return levels;
}

QHBoxLayout* MakeRow(QWidget* box)
{
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    return row;
}

// Names the widget for screen readers and for whoever points at it.
void Name(QWidget* widget, const char* text)
{
    KeepTranslated(widget, [widget, text] {
        widget->setAccessibleName(PlayerPage::tr(text));
        widget->setToolTip(PlayerPage::tr(text));
    });
}

QPushButton* AddSwitch(QHBoxLayout& row, const char* text, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setCheckable(true);
    KeepTranslated(button, [button, text] { button->setText(PlayerPage::tr(text)); });
    row.addWidget(button);
    return button;
}

} // namespace

PlayerPage::PlayerPage(QWidget* parent)
    : QWidget(parent)
    , m_screen(new PlayerScreen(this))
    , m_seek(new SeekBar(this))
    , m_volume(new ToolBarSlider(this, Qt::Horizontal))
    , m_time(new QLabel(this))
    , m_report(new QLabel(this))
    , m_rate(new QComboBox(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(m_screen, 1);
    layout->addWidget(MakePositionRow());
    layout->addWidget(MakeButtonRow());
    layout->addWidget(MakePictureRow());
    View()->ShowPicture(PaintTestCard());
    View()->SetSafeAreas(true);
    Report([] { return tr("Nothing is open."); });
    KeepTranslated(this, [this] {
        m_report->setText(m_reportText());
        ShowState();
    });
    ShowPosition(0);
}

PictureView* PlayerPage::View() const
{
    return m_screen->View();
}

QWidget* PlayerPage::MakePositionRow()
{
    auto* box = new QWidget(this);
    box->setLayoutDirection(Qt::LeftToRight); // as time runs, whatever way text does
    QHBoxLayout* row = MakeRow(box);
    Name(m_seek, QT_TR_NOOP("Position"));
    row->addWidget(m_seek, 1);
    row->addWidget(m_time);
    connect(m_seek, &SeekBar::FrameChosen, this, &PlayerPage::ShowPosition);
    return box;
}

QPushButton* PlayerPage::AddButton(QHBoxLayout& row, const char* text, QIcon icon, const char* keys,
                                   void (PlayerPage::*act)())
{
    auto* button = new QPushButton(icon, QString(), this);
    Name(button, text);
    button->setShortcut(QKeySequence(QLatin1String(keys)));
    connect(button, &QPushButton::clicked, this, act);
    row.addWidget(button);
    return button;
}

QWidget* PlayerPage::MakeButtonRow()
{
    auto* box = new QWidget(this);
    box->setLayoutDirection(Qt::LeftToRight);
    QHBoxLayout* row = MakeRow(box);
    AddButton(*row, QT_TR_NOOP("Back one frame"), SymbolIcon(Symbol::StepBack, kLine), ",",
              &PlayerPage::StepBack);
    m_play = AddButton(*row, QT_TR_NOOP("Play"), {}, "K", &PlayerPage::TogglePlay);
    AddButton(*row, QT_TR_NOOP("Forward one frame"), SymbolIcon(Symbol::StepForward, kLine), ".",
              &PlayerPage::StepForward);
    for (const double rate : kRates)
        m_rate->addItem(QStringLiteral("%1 ×").arg(rate), rate);
    m_rate->setCurrentIndex(m_rate->findData(kUsualRate));
    Name(m_rate, QT_TR_NOOP("Speed"));
    connect(m_rate, QOverload<int>::of(&QComboBox::activated), this, [this] {
        if (m_player && m_player->IsPlaying())
            m_player->Play(ChosenRate());
    });
    row->addWidget(m_rate);
    m_loop = AddSwitch(*row, QT_TR_NOOP("Loop"), this);
    connect(m_loop, &QPushButton::toggled, this, [this](bool on) {
        if (m_player && m_player->IsOpen())
            on ? m_player->SetLoop(0, m_player->Length() - 1) : m_player->ClearLoop();
    });
    AddSound(*row);
    row->addStretch(1);
    auto* open = new QPushButton(this);
    KeepTranslated(open, [open] { open->setText(tr("Open…")); });
    open->setShortcut(QKeySequence::Open);
    connect(open, &QPushButton::clicked, this, &PlayerPage::ChooseFile);
    row->addWidget(open);
    return box;
}

void PlayerPage::AddSound(QHBoxLayout& row)
{
    m_mute = AddSwitch(row, QT_TR_NOOP("Mute"), this);
    connect(m_mute, &QPushButton::toggled, this, [this](bool on) {
        if (m_player)
            m_player->SetMuted(on);
    });
    m_volume->setFixedSize(kVolumeWidth, kSliderHeight);
    m_volume->setRange(0, kFullVolume);
    m_volume->setValue(kFullVolume, false);
    Name(m_volume, QT_TR_NOOP("Volume"));
    connect(m_volume, &ToolBarSlider::valueChanged, this, [this](double value) {
        if (m_player)
            m_player->SetVolume(value / kFullVolume);
    });
    row.addWidget(m_volume);
}

QWidget* PlayerPage::MakePictureRow()
{
    auto* box = new QWidget(this);
    QHBoxLayout* row = MakeRow(box);
    m_report->setObjectName(QStringLiteral("CommonLib_Hint"));
    // However long it is, the window stays as it is.
    m_report->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_report, 1);
    QPushButton* safe = AddSwitch(*row, QT_TR_NOOP("Safe areas"), this);
    safe->setChecked(true);
    connect(safe, &QPushButton::toggled, View(), &PictureView::SetSafeAreas);
    auto* scale = new QComboBox(this);
    scale->addItems({QString(), QString(), QStringLiteral("1:1")});
    KeepTranslated(scale, [scale] {
        scale->setItemText(0, tr("Fit"));
        scale->setItemText(1, tr("Fill"));
    });
    Name(scale, QT_TR_NOOP("Size of the picture"));
    connect(scale, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { View()->SetScale(kScales[index]); });
    row->addWidget(scale);
    return box;
}

void PlayerPage::MakePlayer()
{
    m_player = new MediaPlayer(this);
    m_screen->SetPlayer(m_player);
    m_seek->SetPlayer(m_player);
    connect(m_player, &MediaPlayer::PositionChanged, this, &PlayerPage::ShowPosition);
    connect(m_player, &MediaPlayer::StateChanged, this, &PlayerPage::ShowState);
    connect(m_player, &MediaPlayer::SecondPlayed, this, [this](const NLEPlayerReport& report) {
        Report([report] {
            return tr("Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms")
                .arg(report.shown)
                .arg(report.dropped)
                .arg(report.late)
                .arg(report.cached)
                .arg(report.drift, 0, 'f', 1);
        });
    });
    m_player->SetMuted(m_mute->isChecked());
    m_player->SetVolume(double(m_volume->value()) / kFullVolume);
}

bool PlayerPage::Open(const QString& path)
{
    if (!m_player)
        MakePlayer();
    const QString name = QFileInfo(path).fileName();
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const NLEComPtr<INLETimeline> clip =
        provider->CreateMediaTimeline(QFileInfo(path).absoluteFilePath(), false);
    if (!clip || !m_player->Open(clip)) {
        Report([name] { return tr("%1 cannot be played.").arg(name); });
        return false;
    }
    const float fps = NLETimeline(clip, ExactType_Unknown, nullptr).GetRenderFrameRate();
    m_fps = fps > 0 ? fps : m_fps;
    if (m_loop->isChecked())
        m_player->SetLoop(0, m_player->Length() - 1);
    ShowPosition(0);
    Report([name] { return tr("Ready: %1").arg(name); });
    return true;
}

void PlayerPage::ChooseFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open…"));
    if (!path.isEmpty())
        Open(path);
}

double PlayerPage::ChosenRate() const
{
    return m_rate->currentData().toDouble();
}

void PlayerPage::TogglePlay()
{
    if (!m_player)
        return ChooseFile();
    m_player->IsPlaying() ? m_player->Pause() : m_player->Play(ChosenRate());
}

void PlayerPage::StepBack()
{
    if (m_player)
        m_player->Step(-1);
}

void PlayerPage::StepForward()
{
    if (m_player)
        m_player->Step(1);
}

void PlayerPage::ShowState()
{
    const bool isPlaying = m_player && m_player->IsPlaying();
    m_play->setIcon(SymbolIcon(isPlaying ? Symbol::Pause : Symbol::Play, kLine));
    const QString text = isPlaying ? tr("Pause") : tr("Play");
    m_play->setAccessibleName(text);
    m_play->setToolTip(text);
}

void PlayerPage::ShowPosition(int frame)
{
    const int length = m_player ? m_player->Length() : 0;
    m_time->setText(
        QStringLiteral("%1 / %2").arg(gFrame2String(frame, m_fps), gFrame2String(length, m_fps)));
}

void PlayerPage::Report(std::function<QString()> text)
{
    m_reportText = std::move(text);
    m_report->setText(m_reportText());
}

void PlayerPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_player)
        m_screen->Meter()->SetLevels(SampleLevels());
}
