// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinPanel.h"

#include "Host/Editor/Bin/BinCommands.h"
#include "Host/Editor/Bin/BinView.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 6;

const QColor kInk(0x92, 0x99, 0xa1); // seen on dark and on light

/// Four cells, or three lines.
QIcon ModeIcon(bool isGrid)
{
    constexpr int side = 32;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (int row = 0; row < (isGrid ? 2 : 3); ++row) {
        if (!isGrid) {
            painter.fillRect(4, 5 + row * 9, 24, 5, kInk);
            continue;
        }
        for (int column = 0; column < 2; ++column)
            painter.fillRect(4 + column * 13, 4 + row * 13, 10, 10, kInk);
    }
    return QIcon(pixmap);
}

QToolButton* MakeModeButton(bool isGrid, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setIcon(ModeIcon(isGrid));
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setIconSize(QSize(16, 16));
    return button;
}

} // namespace

BinPanel::BinPanel(Project& project, Selection& selection, MediaPlayer& player, QWidget* parent)
    : QWidget(parent)
    , m_bin(project)
    , m_intake(project, m_bin)
    , m_model(m_bin, m_describer, m_proxies)
    , m_search(new QLineEdit(this))
    , m_gridButton(MakeModeButton(true, this))
    , m_listButton(MakeModeButton(false, this))
    , m_addButton(new QToolButton(this))
    , m_view(new BinView(m_pictures, this))
    , m_details(new QLabel(this))
    , m_status(new QLabel(this))
    , m_commands(new BinCommands(
          {project, selection, player, m_bin, m_intake, m_proxies, m_model, *m_view}, this))
{
    m_shown.setSourceModel(&m_model);
    m_shown.setFilterRole(BinModel::SearchRole);
    m_shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown.setSortCaseSensitivity(Qt::CaseInsensitive);
    m_shown.setSortLocaleAware(true);
    m_shown.sort(0);
    m_view->setModel(&m_shown);
    BuildLayout();
    Connect();
    SetGrid(true);
    KeepTranslated(this, [this] { SetTexts(); });
}

// The view lets go of the models, which go before the children do.
BinPanel::~BinPanel()
{
    delete m_view;
}

bool BinPanel::Relink(const QString& file, const QString& found)
{
    return m_commands->Relink(file, found);
}

void BinPanel::BuildLayout()
{
    m_search->setClearButtonEnabled(true);
    m_addButton->setMenu(m_commands->AddMenu());
    m_addButton->setPopupMode(QToolButton::InstantPopup);
    m_addButton->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    m_details->setObjectName(QStringLiteral("CommonLib_Hint"));
    m_details->setTextFormat(Qt::PlainText);
    m_details->setWordWrap(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Paths have no places to break at, and must not make the panel wider.
    m_details->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->hide();
    auto* top = new QHBoxLayout;
    top->addWidget(m_search, 1);
    top->addWidget(m_gridButton);
    top->addWidget(m_listButton);
    top->addWidget(m_addButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addLayout(top);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_details);
    layout->addWidget(m_status);
    setFocusProxy(m_view);
}

void BinPanel::Connect()
{
    connect(m_search, &QLineEdit::textChanged, &m_shown,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_search, &QLineEdit::textChanged, this, &BinPanel::ShowHint);
    connect(m_gridButton, &QToolButton::clicked, this, [this] { SetGrid(true); });
    connect(m_listButton, &QToolButton::clicked, this, [this] { SetGrid(false); });
    connect(m_view, &BinView::SelectionChanged, this, &BinPanel::ShowDetails);
    connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
        m_commands->ItemMenu()->popup(m_view->viewport()->mapToGlobal(position));
    });
    connect(&m_model, &QAbstractItemModel::dataChanged, this, &BinPanel::ShowDetails);
    connect(&m_model, &BinModel::Dropped, this, &BinPanel::Add);
    connect(&m_intake, &BinIntake::Progressed, this, &BinPanel::SayProgress);
    connect(&m_intake, &BinIntake::Ended, this, &BinPanel::TakeIntakeEnd);
    connect(&m_proxies, &ProxyJobs::Ended, this, &BinPanel::TakeProxyEnd);
    connect(m_commands, &BinCommands::Said, this, &BinPanel::Say);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_model.LookAgain();
            });
}

void BinPanel::SetTexts()
{
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the media"));
    m_gridButton->setToolTip(tr("Grid"));
    m_gridButton->setAccessibleName(tr("Grid"));
    m_listButton->setToolTip(tr("List"));
    m_listButton->setAccessibleName(tr("List"));
    m_addButton->setText(tr("Add…"));
    m_view->setAccessibleName(tr("Media"));
    ShowHint();
    m_details->setAccessibleName(tr("Details"));
    m_commands->Update();
    ShowDetails();
}

void BinPanel::SetGrid(bool isGrid)
{
    m_view->SetGrid(isGrid);
    (isGrid ? m_gridButton : m_listButton)->setChecked(true);
}

void BinPanel::ShowHint()
{
    m_view->SetHint(m_search->text().isEmpty() ? tr("Drop media here, or add files and folders.")
                                               : tr("Nothing found"));
}

void BinPanel::ShowDetails()
{
    const QStringList files = m_view->SelectedFiles();
    QString text;
    if (files.size() == 1)
        text = m_model.Item(files[0]).Details().join(QLatin1Char('\n'));
    else if (files.size() > 1)
        text = tr("%n file(s) selected", nullptr, files.size());
    m_details->setText(text);
    m_details->setVisible(!text.isEmpty());
}

void BinPanel::Say(const QString& text)
{
    m_status->setText(text);
    m_status->setVisible(!text.isEmpty());
}

void BinPanel::SayProgress()
{
    const int count = m_intake.Waiting();
    Say(count > 0 ? tr("Reading %n file(s)…", nullptr, count) : QString());
}

void BinPanel::TakeIntakeEnd(int /*added*/, const QStringList& refused, const QString& reason)
{
    if (refused.isEmpty())
        return;
    const QString first = QFileInfo(refused[0]).fileName();
    const QString text =
        refused.size() == 1
            ? tr("%1 cannot be read as media.").arg(first)
            : tr("%1 and %n more cannot be read as media.", nullptr, refused.size() - 1).arg(first);
    Say(reason.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, reason));
}

void BinPanel::TakeProxyEnd(const QString& file, const QString& proxy, const QString& reason)
{
    if (m_proxyStep == 0)
        m_proxyStep = m_bin.NewMerge();
    if (proxy.isEmpty() && !reason.isEmpty())
        Say(tr("No proxy of %1: %2").arg(QFileInfo(file).fileName(), reason));
    else if (!proxy.isEmpty() && m_bin.Files().contains(file)) // else of a former project
        m_bin.UseProxies({{file, proxy}}, m_proxyStep);
    if (!m_proxies.IsBusy())
        m_proxyStep = 0;
}
