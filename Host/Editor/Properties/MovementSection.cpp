// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/MovementSection.h"

#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Properties/KeyFrameBar.h"
#include "Host/Editor/Properties/MovementKeys.h"
#include "Host/Editor/Properties/PropertyForm.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QHBoxLayout>
#include <QLabel>

MovementSection::MovementSection(const PropertyScope& scope, QWidget* parent)
    : QWidget(parent), m_scope(scope)
{
    const auto keys = std::make_shared<MovementKeys>(scope.node);
    m_bar = new KeyFrameBar(keys, tr("Movement"), this);
    m_form =
        new PropertyForm(scope, MovementFields(keys, [scope] { return scope.PlayHead(); }), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("Key frame"), this));
    row->addWidget(m_bar->Diamond());
    row->addWidget(m_bar);
    row->addStretch();
    column->addLayout(row);
    column->addWidget(m_form);
    connect(m_bar, &KeyFrameBar::SeekWanted, this,
            [this](int frame) { m_scope.player.Seek(frame); });
    connect(m_bar, &KeyFrameBar::ChangeWanted, this, [this](const PropertyChange& change) {
        m_scope.project.Change(tr("Change movement"), m_scope.node, change.redo, change.undo);
    });
    Refresh();
}

void MovementSection::Refresh()
{
    m_bar->Show(m_scope.PlayHead());
    m_form->Refresh();
}
