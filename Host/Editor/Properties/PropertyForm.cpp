// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PropertyForm.h"

#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Properties/FieldName.h"
#include "Host/Editor/Properties/KeyFrameBar.h"
#include "Host/Editor/Properties/ParameterKeys.h"
#include "Host/Editor/Properties/PropertyEditor.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/SmallButton.h"

#include <QGridLayout>
#include <QToolButton>

namespace {

enum Column
{
    Name,
    Editor,
    Key,
    Way
};

} // namespace

PropertyForm::PropertyForm(const PropertyScope& scope, const QVector<PropertyField>& fields,
                           QWidget* parent)
    : QWidget(parent), m_scope(scope)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kFieldGap);
    grid->setColumnMinimumWidth(Name, kFieldNameWidth);
    grid->setColumnStretch(Editor, 1);
    for (const PropertyField& field : fields)
        AddRow(field);
    Refresh();
}

void PropertyForm::AddRow(const PropertyField& field)
{
    const int index = m_rows.size();
    auto* grid = static_cast<QGridLayout*>(layout());
    const int line = grid->rowCount();
    PropertyEditor* editor = PropertyEditor::Make(field, this);
    editor->setEnabled(!field.isFixed);
    m_rows.append({field, editor, nullptr, nullptr, 0});
    grid->addWidget(MakeFieldName(field.title, editor, this), line, Name);
    grid->addWidget(editor, line, Editor);
    if (field.preset.isValid() && !field.isFixed) {
        m_rows[index].reset = AddReset(index);
        grid->addWidget(m_rows[index].reset, line, Way);
    }
    if (field.keys)
        m_rows[index].keys = AddKeys(index, *grid, line);
    Connect(index);
}

QToolButton* PropertyForm::AddReset(int index)
{
    auto* reset = MakeSmallButton(QStringLiteral("↺"), tr("Back to the preset"),
                                  m_rows[index].field.title, this);
    connect(reset, &QToolButton::clicked, this, [this, index] { Reset(index); });
    return reset;
}

KeyFrameBar* PropertyForm::AddKeys(int index, QGridLayout& grid, int line)
{
    const PropertyField& field = m_rows[index].field;
    auto* keys = new KeyFrameBar(field.keys, field.title, this);
    grid.addWidget(keys, line + 1, Editor);
    grid.addWidget(keys->Diamond(), line, Key);
    connect(keys, &KeyFrameBar::SeekWanted, this,
            [this](int frame) { m_scope.player.Seek(frame); });
    connect(keys, &KeyFrameBar::ChangeWanted, this,
            [this, index](const PropertyChange& change) { Make(index, change); });
    return keys;
}

void PropertyForm::Connect(int index)
{
    const PropertyEditor* editor = m_rows[index].editor;
    connect(editor, &PropertyEditor::Began, this,
            [this, index] { m_rows[index].merge = m_scope.project.NewMerge(); });
    connect(editor, &PropertyEditor::Ended, this, [this, index] {
        m_rows[index].merge = 0;
        Show(m_rows[index]); // the engine may have rounded it
    });
    connect(editor, &PropertyEditor::Changed, this,
            [this, index](const QVariant& value) { Set(index, value); });
}

void PropertyForm::Set(int index, const QVariant& value)
{
    const PropertyField& field = m_rows[index].field;
    if (field.value() != value)
        Make(index, field.change(value));
}

void PropertyForm::Reset(int index)
{
    const PropertyField& field = m_rows[index].field;
    if (field.keys && field.keys->IsAnimated())
        Make(index, field.keys->Clear(field.preset.toDouble()));
    else
        Set(index, field.preset);
}

void PropertyForm::Make(int index, const PropertyChange& change)
{
    const Row& row = m_rows[index];
    // A refused value is not on show any more.
    if (!m_scope.project.Change(tr("Change %1").arg(row.field.title), m_scope.node, change.redo,
                                change.undo, row.merge))
        Refresh();
}

void PropertyForm::Show(const Row& row) const
{
    const QVariant value = row.field.value();
    row.editor->Show(value);
    if (row.reset)
        row.reset->setEnabled(value != row.field.preset ||
                              (row.field.keys && row.field.keys->IsAnimated()));
    if (row.keys)
        row.keys->Show(m_scope.PlayHead());
}

void PropertyForm::Refresh()
{
    for (const Row& row : qAsConst(m_rows))
        Show(row);
}

void PropertyForm::FollowPlayHead()
{
    for (const Row& row : qAsConst(m_rows)) {
        if (row.keys)
            Show(row);
    }
}
