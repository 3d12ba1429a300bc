// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/EffectsSection.h"

#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/ParameterFields.h"
#include "Host/Editor/Properties/PropertyForm.h"
#include "Host/EngineText.h"
#include "Host/Widgets/SmallButton.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kGap = 6;

/// What an effect is called for people; it may be one of picture or of sound.
QString TitleOf(const NLEComPtr<INLETimeline>& effect)
{
    const auto named = effect.query<INLETimelineEffect>();
    if (!named)
        return {};
    const QString name = EngineText(
        [&](wchar_t* text, int capacity) { return named->GetEffectName(text, capacity); });
    const QString title = EngineCatalog::TitleOf(NLECatalog_Effect, name);
    return title != name ? title : EngineCatalog::TitleOf(NLECatalog_AudioFilter, name);
}

bool IsEnabled(const NLEComPtr<INLETimeline>& node)
{
    bool isEnabled = false;
    return node->GetEnabled(&isEnabled) == S_OK && isEnabled;
}

} // namespace

EffectsSection::EffectsSection(const PropertyScope& scope, QWidget* parent)
    : QWidget(parent), m_scope(scope), m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(kGap);
    auto* add = new QPushButton(tr("Add effect"), this);
    auto* menu = new QMenu(add);
    AddMenu(*menu, tr("Picture"), NLECatalog_Effect);
    AddMenu(*menu, tr("Sound"), NLECatalog_AudioFilter);
    add->setMenu(menu);
    m_column->addWidget(add);
    Refresh();
}

void EffectsSection::AddMenu(QMenu& menu, const QString& title, NLECatalogKind kind)
{
    QMenu* part = menu.addMenu(title);
    for (const EngineCatalog::Entry& entry : EngineCatalog::Entries(kind))
        connect(part->addAction(entry.title), &QAction::triggered, this,
                [this, kind, name = entry.name] {
                    ClipActions::AddEffect(m_scope.project, m_scope.node, kind, name);
                });
}

QVector<NLEComPtr<INLETimeline>> EffectsSection::Effects() const
{
    const auto carried = FacilityOf<INLEEffects>(m_scope.node);
    QVector<NLEComPtr<INLETimeline>> effects;
    int count = 0;
    if (!carried || carried->GetCount(&count) != S_OK)
        return effects;
    for (int index = 0; index < count; ++index) {
        NLEComPtr<INLETimeline> effect;
        if (carried->GetEffect(index, effect.put()) == S_OK)
            effects.append(effect);
    }
    return effects;
}

void EffectsSection::Refresh()
{
    const auto effects = Effects();
    QVector<NLEComPtr<INLETimeline>> shown;
    for (const Card& card : qAsConst(m_cards))
        shown.append(card.effect);
    if (effects != shown)
        Rebuild(effects);
    for (const Card& card : qAsConst(m_cards)) {
        card.isOn->setChecked(IsEnabled(card.effect));
        card.form->Refresh();
    }
}

void EffectsSection::FollowPlayHead()
{
    for (const Card& card : qAsConst(m_cards))
        card.form->FollowPlayHead();
}

void EffectsSection::Rebuild(const QVector<NLEComPtr<INLETimeline>>& effects)
{
    // A card may be what was clicked.
    for (const Card& card : qAsConst(m_cards)) {
        card.widget->hide();
        card.widget->deleteLater();
    }
    m_cards.clear();
    for (int index = 0; index < effects.size(); ++index) {
        m_cards.append(MakeCard(effects[index], index, effects.size()));
        m_column->insertWidget(m_column->count() - 1, m_cards.last().widget);
    }
}

EffectsSection::Card EffectsSection::MakeCard(const NLEComPtr<INLETimeline>& effect, int index,
                                              int count)
{
    auto* widget = new QWidget(this);
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    auto* head = new QHBoxLayout;
    auto* isOn = new QCheckBox(TitleOf(effect), widget);
    auto* up = MakeSmallButton(QStringLiteral("↑"), tr("Apply earlier"), isOn->text(), widget);
    auto* down = MakeSmallButton(QStringLiteral("↓"), tr("Apply later"), isOn->text(), widget);
    auto* remove = MakeSmallButton(QStringLiteral("×"), tr("Remove"), isOn->text(), widget);
    up->setEnabled(index > 0);
    down->setEnabled(index + 1 < count);
    head->addWidget(isOn, 1);
    for (QToolButton* button : {up, down, remove})
        head->addWidget(button);
    column->addLayout(head);
    const auto fields =
        ParameterFields(effect, m_scope.node, [scope = m_scope] { return scope.PlayHead(); });
    auto* form = new PropertyForm(m_scope, fields, widget);
    column->addWidget(form);
    Project& project = m_scope.project;
    const auto node = m_scope.node;
    connect(isOn, &QCheckBox::clicked, this, [&project, node, index](bool enable) {
        ClipActions::EnableEffect(project, node, index, enable);
    });
    connect(up, &QToolButton::clicked, this,
            [&project, node, index] { ClipActions::MoveEffect(project, node, index, index - 1); });
    connect(down, &QToolButton::clicked, this,
            [&project, node, index] { ClipActions::MoveEffect(project, node, index, index + 1); });
    connect(remove, &QToolButton::clicked, this,
            [&project, node, index] { ClipActions::RemoveEffect(project, node, index); });
    return {effect, widget, isOn, form};
}
