// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/LanguagePage.h"

#include "CommonLib/MultiLangMgr.h"
#include "Host/HostLanguage.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QComboBox>
#include <QEvent>
#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/// Qt mirrors all layouts when this text, in this context of its own, becomes "RTL".
const char* const kDirection[] = {
    //: "LTR" where text runs from left to right, "RTL" where it runs from right to left.
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION")};

/// What an editor's screens say.
const char* const kSample[] = {QT_TRANSLATE_NOOP("LanguagePage", "Import media…"),
                               QT_TRANSLATE_NOOP("LanguagePage", "Split at the play head"),
                               QT_TRANSLATE_NOOP("LanguagePage", "Add a transition"),
                               QT_TRANSLATE_NOOP("LanguagePage", "Undo"),
                               QT_TRANSLATE_NOOP("LanguagePage", "Save the project"),
                               QT_TRANSLATE_NOOP("LanguagePage", "Export…")};
constexpr int kSampleColumns = 2;

/// Each language in its own words, and in English for whoever ended up in the wrong one.
QString LanguageName(const LangConstInfo& info)
{
    const QString own = HostLanguage::LocaleOf(info).nativeLanguageName();
    return QStringLiteral("%1 (%2)").arg(own, info.englishName);
}

} // namespace

LanguagePage::LanguagePage(QWidget* parent)
    : QWidget(parent)
    , m_languages(new QComboBox(this))
    , m_font(new QLabel(this))
    , m_drawnIn(new QLabel(this))
    , m_direction(new QLabel(this))
    , m_count(new QSpinBox(this))
    , m_counted(new QLabel(this))
{
    Q_UNUSED(kDirection)
    ListLanguages();
    // So that names in Latin script stay beside their labels where text runs from right to left.
    for (QLabel* name : {m_font, m_drawnIn})
        name->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_count->setRange(0, 1000000);
    m_count->setValue(3);
    auto* form = new QFormLayout;
    AddLabeled(form, QT_TR_NOOP("Language:"), m_languages);
    AddLabeled(form, QT_TR_NOOP("Font of the language:"), m_font);
    AddLabeled(form, QT_TR_NOOP("Drawn in:"), m_drawnIn);
    AddLabeled(form, QT_TR_NOOP("Reading direction:"), m_direction);
    AddLabeled(form, QT_TR_NOOP("Clips:"), m_count);
    form->addRow(QString(), m_counted);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addWidget(MakeSample());
    layout->addStretch(1);

    auto* manager = MultiLangMgr::GetInstance();
    connect(m_languages, QOverload<int>::of(&QComboBox::activated), this,
            [this] { HostLanguage::Select(Language_Locale(m_languages->currentData().toInt())); });
    connect(manager, &MultiLangMgr::sigFontFamilyChanged, this, &LanguagePage::ShowFacts);
    connect(m_count, QOverload<int>::of(&QSpinBox::valueChanged), this, &LanguagePage::ShowFacts);
    KeepTranslated(this, [this] { ShowFacts(); });
}

void LanguagePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool told = event->type() == QEvent::LayoutDirectionChange ||
                      event->type() == QEvent::ApplicationFontChange;
    if (told && m_counted)
        ShowFacts();
}

void LanguagePage::ListLanguages()
{
    int count = 0;
    const LangConstInfo* info = GetGlobalLangConstInfos(count);
    for (int i = 0; i < count; ++i)
        m_languages->addItem(LanguageName(info[i]), int(info[i].locale));
}

/// \a label stands in the page's translation context.
void LanguagePage::AddLabeled(QFormLayout* form, const char* label, QWidget* field)
{
    auto* text = new QLabel(this);
    text->setBuddy(field);
    form->addRow(text, field);
    KeepTranslated(text, [text, label] { text->setText(tr(label)); });
}

QWidget* LanguagePage::MakeSample()
{
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    int cell = 0;
    for (const char* source : kSample) {
        auto* button = new QPushButton(box);
        grid->addWidget(button, cell / kSampleColumns, cell % kSampleColumns);
        KeepTranslated(button, [button, source] { button->setText(tr(source)); });
        ++cell;
    }
    KeepTranslated(box, [box] { box->setTitle(tr("Sample")); });
    return box;
}

void LanguagePage::ShowFacts()
{
    const auto* manager = MultiLangMgr::GetInstance();
    m_languages->setCurrentIndex(m_languages->findData(int(manager->GetLangLocale())));
    m_font->setText(manager->GetCurrentFontFamily());
    m_drawnIn->setText(QFontInfo(font()).family());
    m_direction->setText(layoutDirection() == Qt::RightToLeft ? tr("right to left")
                                                              : tr("left to right"));
    m_counted->setText(tr("%Ln clip(s) selected", nullptr, m_count->value()));
}
