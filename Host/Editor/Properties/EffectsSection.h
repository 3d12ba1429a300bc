// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyScope.h"

#include "EngineApi/INLEEffects.h"

#include <QVector>
#include <QWidget>

class PropertyForm;
class QCheckBox;
class QMenu;
class QToolButton;
class QVBoxLayout;

/// The effects of a clip in their order, with their parameters, and those that can be added.
class EffectsSection : public QWidget
{
    Q_OBJECT

public:
    explicit EffectsSection(const PropertyScope& scope, QWidget* parent = nullptr);

    /// Shows what is there now.
    void Refresh();
    void FollowPlayHead();

private:
    struct Card
    {
        NLEComPtr<INLETimeline> effect;
        QWidget* widget;
        QCheckBox* isOn;
        PropertyForm* form;
    };

    QVector<NLEComPtr<INLETimeline>> Effects() const;
    void Rebuild(const QVector<NLEComPtr<INLETimeline>>& effects);
    Card MakeCard(const NLEComPtr<INLETimeline>& effect, int index, int count);
    void AddMenu(QMenu& menu, const QString& title, NLECatalogKind kind);

    const PropertyScope m_scope;
    QVBoxLayout* m_column;
    QVector<Card> m_cards;
};
