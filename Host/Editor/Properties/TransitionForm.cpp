// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/TransitionForm.h"

#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/FieldName.h"
#include "Host/Widgets/NumberEdit.h"

#include <QComboBox>
#include <QGridLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLongest = 10; // seconds of the slider

} // namespace

TransitionForm::TransitionForm(const PropertyScope& scope, QWidget* parent)
    : QWidget(parent)
    , m_scope(scope)
    , m_kind(new QComboBox(this))
    , m_length(new NumberEdit({1 / scope.project.FrameRate(), kLongest,
                               1 / scope.project.FrameRate(), 2, tr(" s"), true},
                              this))
{
    for (const EngineCatalog::Entry& entry : EngineCatalog::Entries(NLECatalog_Transition))
        m_kind->addItem(entry.title, entry.name);
    m_kind->setAccessibleName(tr("Kind"));
    m_kind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kFieldGap);
    grid->setColumnStretch(1, 1);
    const auto addRow = [&](int line, const QString& title, QWidget* editor) {
        grid->addWidget(MakeFieldName(title, editor, this), line, 0);
        grid->addWidget(editor, line, 1);
    };
    addRow(0, tr("Kind"), m_kind);
    addRow(1, tr("Length"), m_length);
    m_length->SetTitle(tr("Length"));
    connect(m_kind, qOverload<int>(&QComboBox::activated), this,
            [this] { Apply(m_kind->currentData().toString(), Frames()); });
    connect(m_length, &NumberEdit::Settled, this, [this](double seconds) {
        Apply(m_kind->currentData().toString(),
              std::max(1, int(std::lround(seconds * m_scope.project.FrameRate()))));
    });
    Refresh();
}

void TransitionForm::Refresh()
{
    m_kind->setCurrentIndex(m_kind->findData(EngineCatalog::NameOf(m_scope.node)));
    m_length->SetValue(Frames() / m_scope.project.FrameRate());
}

int TransitionForm::Frames() const
{
    NLERange range = {};
    m_scope.node->GetRange(&range);
    return int(NLERangeLength(range));
}

void TransitionForm::Apply(const QString& kind, int frames)
{
    if ((kind == EngineCatalog::NameOf(m_scope.node) && frames == Frames()) ||
        ClipActions::ChangeTransition(m_scope.project, m_scope.selection, m_scope.node, kind,
                                      frames))
        return;
    Refresh();
}
