// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/TextEditors.h"

#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>

namespace {

constexpr int kTextHeight = 64;
constexpr int kShortestName = 8; // characters

} // namespace

TextEditor::TextEditor(const PropertyField& field, QWidget* parent)
    : PropertyEditor(parent), m_text(new QPlainTextEdit(this))
{
    m_text->setFixedHeight(kTextHeight);
    m_text->setTabChangesFocus(true);
    m_text->installEventFilter(this);
    Fill(m_text, field.title);
    connect(m_text, &QPlainTextEdit::textChanged, this,
            [this] { Q_EMIT Changed(m_text->toPlainText()); });
}

void TextEditor::Show(const QVariant& value)
{
    // Setting what stands there would move the cursor.
    if (m_text->toPlainText() == value.toString())
        return;
    const QSignalBlocker blocker(m_text);
    m_text->setPlainText(value.toString());
}

bool TextEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        Q_EMIT Began();
    if (event->type() == QEvent::FocusOut)
        Q_EMIT Ended();
    return PropertyEditor::eventFilter(watched, event);
}

FontEditor::FontEditor(const PropertyField& field, QWidget* parent)
    : PropertyEditor(parent), m_box(new QComboBox(this))
{
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->addItem(tr("System font"), QString());
    for (const QString& family : QFontDatabase().families())
        m_box->addItem(family, family);
    m_box->setMinimumContentsLength(kShortestName);
    m_box->setFocusPolicy(Qt::StrongFocus);
    Fill(m_box, field.title);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT Changed(m_box->itemData(index)); });
}

void FontEditor::Show(const QVariant& value)
{
    // A document may name a family that is not here.
    if (m_box->findData(value) < 0)
        m_box->addItem(value.toString(), value);
    m_box->setCurrentIndex(m_box->findData(value));
}

FileEditor::FileEditor(const PropertyField& field, QWidget* parent)
    : PropertyEditor(parent), m_line(new QLineEdit(this))
{
    Fill(m_line, field.title);
    m_line->setPlaceholderText(tr("No file"));
    auto* pick = new QToolButton(this);
    pick->setText(QStringLiteral("…"));
    pick->setStyleSheet(QStringLiteral("padding: 4px"));
    pick->setAccessibleName(tr("Choose a file"));
    pick->setToolTip(pick->accessibleName());
    layout()->addWidget(pick);
    connect(m_line, &QLineEdit::editingFinished, this, &FileEditor::Take);
    connect(pick, &QToolButton::clicked, this, &FileEditor::Pick);
}

void FileEditor::Show(const QVariant& value)
{
    m_shown = value.toString();
    m_line->setText(QDir::toNativeSeparators(m_shown));
}

void FileEditor::Pick()
{
    const QString path = QFileDialog::getOpenFileName(this, m_line->accessibleName(), m_shown);
    if (path.isEmpty())
        return;
    m_line->setText(path);
    Take();
}

void FileEditor::Take()
{
    const QString path = QDir::fromNativeSeparators(m_line->text());
    if (path != m_shown)
        Q_EMIT Changed(path);
}
