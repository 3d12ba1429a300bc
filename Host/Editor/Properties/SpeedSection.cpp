// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/SpeedSection.h"

#include "CommonLib/NLEWraper/NLETimeline.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/FieldName.h"
#include "Host/Widgets/NumberEdit.h"
#include "Host/Widgets/SmallButton.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace {

constexpr double kUsual = 100; // per cent
constexpr double kSlowest = 10;
constexpr double kFastest = 1000;

double SpeedOf(const NLEComPtr<INLETimeline>& clip)
{
    const NLETimeline wrapper(clip, ExactType_Unknown, nullptr);
    return wrapper.IsRenderScaleEnable() ? double(wrapper.GetRenderScale()) * kUsual : kUsual;
}

} // namespace

SpeedSection::SpeedSection(const PropertyScope& scope, QWidget* parent)
    : QWidget(parent)
    , m_scope(scope)
    , m_speed(new NumberEdit({kSlowest, kFastest, 1, 1, tr(" %"), true}, this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kFieldGap);
    QLabel* name = MakeFieldName(tr("Speed"), m_speed, this);
    m_speed->SetTitle(name->text());
    m_reset = MakeSmallButton(QStringLiteral("↺"), tr("Back to the preset"), name->text(), this);
    row->addWidget(name);
    row->addWidget(m_speed, 1);
    row->addWidget(m_reset);
    connect(m_speed, &NumberEdit::Settled, this, &SpeedSection::Apply);
    connect(m_reset, &QToolButton::clicked, this, [this] { Apply(kUsual); });
    Refresh();
}

void SpeedSection::Refresh()
{
    m_speed->SetValue(SpeedOf(m_scope.node));
    m_reset->setEnabled(m_speed->Value() != kUsual);
}

void SpeedSection::Apply(double percent)
{
    if (qFuzzyCompare(percent, SpeedOf(m_scope.node)))
        return;
    if (!ClipActions::SetSpeed(m_scope.project, m_scope.selection, m_scope.node, percent / kUsual))
        Refresh();
}
