// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PropertiesPanel.h"

#include "CommonLib/NLEWraper/NLETimeline.h"
#include "EngineApi/INLETitle.h"
#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/ClipFields.h"
#include "Host/Editor/Properties/EffectsSection.h"
#include "Host/Editor/Properties/MovementSection.h"
#include "Host/Editor/Properties/ParameterFields.h"
#include "Host/Editor/Properties/ProjectFields.h"
#include "Host/Editor/Properties/PropertyForm.h"
#include "Host/Editor/Properties/SpeedSection.h"
#include "Host/Editor/Properties/TransitionForm.h"
#include "Host/Editor/Properties/TransitionSection.h"
#include "Host/EngineText.h"
#include "Host/Widgets/HostStyle.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 10;
constexpr int kNarrowest = 280; // of what scrolls
constexpr int kMostStrips = 2;  // of the mixer, that are open at first

} // namespace

PropertiesPanel::PropertiesPanel(Project& project, Selection& selection, MediaPlayer& player,
                                 QWidget* parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_player(player)
    , m_title(new QLabel(this))
    , m_scroll(new QScrollArea(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, 0);
    HostStyle::MakeTitle(*m_title);
    m_title->setIndent(kMargin / 2); // as the sections below
    column->addWidget(m_title);
    column->addWidget(m_scroll, 1);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidget(new QWidget);
    auto* page = new QVBoxLayout(m_scroll->widget());
    page->setContentsMargins(0, 0, 0, 0);
    connect(&selection, &Selection::Changed, this, &PropertiesPanel::RebuildIfOther);
    connect(&project, &Project::Replaced, this, &PropertiesPanel::Rebuild);
    connect(&project, &Project::NodeChanged, this, &PropertiesPanel::RefreshIfShown);
    connect(&project, &Project::ClipsChanged, this, &PropertiesPanel::RefreshIfPlaced);
    connect(&player, &MediaPlayer::PositionChanged, this, &PropertiesPanel::FollowPlayHead);
    Rebuild();
}

void PropertiesPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The engine's titles are in another language then, too.
    if (event->type() == QEvent::LanguageChange && m_content)
        Rebuild();
}

void PropertiesPanel::RebuildIfOther()
{
    const NLEComPtr<INLETimeline> current = m_selection.Current();
    if ((current ? current : m_project.Node()) != m_node)
        Rebuild();
}

void PropertiesPanel::Rebuild()
{
    setAccessibleName(tr("Properties"));
    m_strips.clear();
    m_node = m_selection.Current();
    if (!m_node)
        m_node = m_project.Node();
    StartContent();
    if (m_node && m_node == m_project.Node())
        AddProjectSections();
    else if (m_node.query<INLETimelineTransition>())
        AddTransitionSections();
    else if (m_node)
        AddClipSections();
    if (isVisible())
        return m_builds.start(0, this);
    while (!m_unbuilt.empty())
        BuildNext();
    ShowContent();
}

void PropertiesPanel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_builds.timerId())
        return QWidget::timerEvent(event);
    if (!m_unbuilt.empty())
        return BuildNext();
    ShowContent();
}

void PropertiesPanel::BuildNext()
{
    const auto build = std::move(m_unbuilt.front());
    m_unbuilt.pop_front();
    build();
}

void PropertiesPanel::ShowContent()
{
    m_builds.stop();
    const bool isProject = m_node == m_project.Node();
    m_title->setText(isProject ? tr("Project") : Title());
    m_column->addStretch();
    // What was clicked may be in the content that goes.
    if (m_former) {
        m_former->hide();
        std::exchange(m_former, nullptr)->deleteLater();
    }
    m_content->show();
    FitWidth();
}

/// Empty, and where it stays: to give a tree of widgets another parent has all of them styled
/// again.
void PropertiesPanel::StartContent()
{
    m_shown.clear();
    m_unbuilt.clear();
    if (m_former) {
        m_content->hide(); // it goes when the event loop comes round
        m_content->deleteLater();
    } else {
        m_former = m_content;
    }
    m_content = new QWidget(m_scroll->widget());
    m_content->hide(); // until it is whole: a layout shows what was not hidden by name
    m_scroll->widget()->layout()->addWidget(m_content);
    m_column = new QVBoxLayout(m_content);
    m_column->setContentsMargins(kMargin / 2, 0, kMargin / 2, kMargin);
    m_column->setSpacing(kGap);
}

/// It scrolls up and down alone.
void PropertiesPanel::FitWidth()
{
    const int needed =
        m_content->minimumSizeHint().width() + m_scroll->verticalScrollBar()->sizeHint().width();
    m_scroll->setMinimumWidth(std::max(kNarrowest, needed));
}

QString PropertiesPanel::Title() const
{
    if (m_node.query<INLETimelineTransition>())
        return EngineCatalog::TitleOf(NLECatalog_Transition, EngineCatalog::NameOf(m_node));
    if (m_node.query<INLETitle>())
        return tr("Title");
    if (m_node.query<INLEColorClip>())
        return tr("Colour");
    const NLETimeline wrapper(m_node, ExactType_Unknown, nullptr);
    const QString file = QFileInfo(wrapper.GetFilePath()).fileName();
    return file.isEmpty() ? tr("Clip") : file;
}

PropertyScope PropertiesPanel::Scope() const
{
    return {m_project, m_selection, m_player, m_node};
}

bool PropertiesPanel::HasSound() const
{
    const NLETimeline wrapper(m_node, ExactType_Unknown, nullptr);
    return wrapper.HaveAudio() || m_node.query<INLETimelineComposite>();
}

void PropertiesPanel::AddSection(const QString& title, const PropertySection::Make& make,
                                 bool isOpen)
{
    m_unbuilt.emplace_back([this, title, make, isOpen] {
        const bool isShown = (isOpen || m_opened.contains(title)) && !m_folded.contains(title);
        auto* section = new PropertySection(title, make, isShown, m_content);
        m_column->addWidget(section);
        section->ensurePolished();
        connect(section, &PropertySection::Folded, this,
                [this, title](bool isOpened) { NoteFold(title, isOpened); });
    });
}

void PropertiesPanel::NoteFold(const QString& title, bool isOpen)
{
    (isOpen ? m_opened : m_folded).insert(title);
    (isOpen ? m_folded : m_opened).remove(title);
    Refresh(); // what was folded is not up to date
    FitWidth();
}

template <typename Content>
Content* PropertiesPanel::Watched(Content* content)
{
    m_shown.append(
        {content, [content] { content->Refresh(); }, [content] { content->FollowPlayHead(); }});
    return content;
}

template <typename Section>
void PropertiesPanel::AddSection(const QString& title)
{
    AddSection(title, [this](QWidget* parent) { return Watched(new Section(Scope(), parent)); });
}

void PropertiesPanel::AddFields(const QString& title, const QVector<PropertyField>& fields,
                                bool isOpen)
{
    if (fields.isEmpty())
        return;
    const auto make = [this, fields](QWidget* parent) {
        return Watched(new PropertyForm(Scope(), fields, parent));
    };
    AddSection(title, make, isOpen);
}

void PropertiesPanel::AddProjectSections()
{
    AddTitleButton();
    AddFields(tr("Format"), ProjectFields::Format(m_node));
    AddFields(tr("Drawing"), ProjectFields::Drawing(m_node));
    AddMixer();
    AddSection<EffectsSection>(tr("Effects"));
}

void PropertiesPanel::AddTitleButton()
{
    auto* add = new QPushButton(tr("Add title"), m_content);
    m_column->addWidget(add);
    connect(add, &QPushButton::clicked, this, [this] {
        ClipActions::AddTitle(m_project, m_selection, tr("Title"), Scope().PlayHead());
    });
}

void PropertiesPanel::AddMixer()
{
    m_strips = StripTitles();
    // Many are for those who look for them.
    const bool isOpen = m_strips.size() <= kMostStrips;
    for (const int level : ProjectFields::MixedLevels(m_node))
        AddFields(StripTitle(level), ProjectFields::Strip(m_node, level), isOpen);
}

QString PropertiesPanel::StripTitle(int level) const
{
    const QString name = EngineText([&](wchar_t* text, int capacity) {
        return m_project.Levels()->GetName(level, text, capacity);
    });
    return tr("Mixer, level %1").arg(name.isEmpty() ? locale().toString(level + 1) : name);
}

QStringList PropertiesPanel::StripTitles() const
{
    QStringList titles;
    for (const int level : ProjectFields::MixedLevels(m_node))
        titles << StripTitle(level);
    return titles;
}

void PropertiesPanel::AddTransitionSections()
{
    const PropertyScope scope = Scope();
    AddSection<TransitionForm>(tr("Transition"));
    AddFields(tr("Parameters"),
              ParameterFields(m_node, m_node, [scope] { return scope.PlayHead(); }));
}

void PropertiesPanel::AddClipSections()
{
    const PropertyScope scope = Scope();
    AddFields(tr("Title"), ParameterFields(m_node, m_node, [scope] { return scope.PlayHead(); }));
    AddFields(tr("Colour"), ClipFields::Color(m_node));
    AddFields(tr("Placement"), ClipFields::Placement(m_node));
    AddFields(tr("Blending"), ClipFields::Blending(m_node));
    AddSection<MovementSection>(tr("Movement"));
    if (!m_node.query<INLETimelineComposite>())
        AddSection<SpeedSection>(tr("Speed"));
    if (HasSound())
        AddFields(tr("Sound"), ClipFields::Sound(m_node));
    AddSection<EffectsSection>(tr("Effects"));
    AddSection(tr("Transitions"),
               [scope](QWidget* parent) { return new TransitionSection(scope, parent); });
}

void PropertiesPanel::RefreshIfShown(const NLEComPtr<INLETimeline>& node)
{
    if (node == m_node)
        Refresh();
}

void PropertiesPanel::RefreshIfPlaced(const QVector<NLEComPtr<INLETimeline>>& clips)
{
    const bool isProject = m_node && m_node == m_project.Node();
    // The rate is fixed by the first clip, and the mixer has a strip for each level that has some,
    // which heads of levels mute and name.
    if (isProject && StripTitles() != m_strips)
        Rebuild();
    else if (clips.contains(m_node) || (isProject && clips.isEmpty()))
        Refresh();
}

void PropertiesPanel::Refresh()
{
    for (const Shown& shown : qAsConst(m_shown)) {
        if (!shown.widget->isHidden())
            shown.refresh();
    }
}

void PropertiesPanel::FollowPlayHead()
{
    for (const Shown& shown : qAsConst(m_shown)) {
        if (!shown.widget->isHidden())
            shown.followPlayHead();
    }
}
