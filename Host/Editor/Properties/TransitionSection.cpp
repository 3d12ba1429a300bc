// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/TransitionSection.h"

#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Properties/ClipActions.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

TransitionSection::TransitionSection(const PropertyScope& scope, QWidget* parent)
    : QWidget(parent), m_scope(scope)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    // The beginning is at the left, as on the timeline.
    row->setDirection(isRightToLeft() ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
    row->addWidget(MakeButton(tr("At the beginning"), NLEEdge_Begin));
    row->addWidget(MakeButton(tr("At the end"), NLEEdge_End));
}

QPushButton* TransitionSection::MakeButton(const QString& text, NLEClipEdge edge)
{
    auto* button = new QPushButton(text, this);
    auto* menu = new QMenu(button);
    for (const EngineCatalog::Entry& entry : EngineCatalog::Entries(NLECatalog_Transition))
        connect(menu->addAction(entry.title), &QAction::triggered, this,
                [this, edge, name = entry.name] {
                    ClipActions::AddTransition(m_scope.project, m_scope.selection, m_scope.node,
                                               name, edge);
                });
    button->setMenu(menu);
    return button;
}
