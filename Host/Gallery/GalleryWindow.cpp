// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/GalleryWindow.h"

#include "Host/Gallery/Pages.h"
#include "Host/Widgets/HostStyle.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kListWidth = 180;
constexpr int kMargin = 20;

QString Translated(const char* text)
{
    return QCoreApplication::translate("Gallery", text);
}

QWidget* FramedPage(const GalleryPage& page, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* title = new QLabel(frame);
    HostStyle::MakeTitle(*title);
    auto* hint = new QLabel(frame);
    hint->setObjectName(QStringLiteral("CommonLib_Hint"));
    hint->setWordWrap(true);
    KeepTranslated(frame, [title, hint, &page] {
        title->setText(Translated(page.title));
        hint->setText(Translated(page.hint));
    });
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(title);
    layout->addWidget(hint);
    layout->addSpacing(kMargin / 2);
    layout->addWidget(page.make(frame), 1);
    return frame;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QWidget(parent), m_list(new QListWidget(this)), m_stack(new QStackedWidget(this))
{
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const GalleryPage& page : GalleryPages()) {
        m_list->addItem(QString());
        m_stack->addWidget(FramedPage(page, m_stack));
    }
    KeepTranslated(this, [this] { SetTexts(); });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_list);
    layout->addWidget(m_stack, 1);
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_list->setCurrentRow(0);
}

bool GalleryWindow::ShowPage(const QString& name)
{
    const QVector<GalleryPage>& pages = GalleryPages();
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&](const GalleryPage& page) { return name == page.name; });
    if (found == pages.end())
        return false;
    m_list->setCurrentRow(static_cast<int>(found - pages.begin()));
    return true;
}

void GalleryWindow::SetTexts()
{
    setLocale(QLocale()); // the language's; what is in the window takes it over
    setWindowTitle(tr("CommonLib widgets"));
    m_list->setAccessibleName(tr("Pages"));
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setText(Translated(GalleryPages()[row].title));
    FitList();
}

void GalleryWindow::FitList()
{
    // The paddings of the list and of its items are the style's.
    m_list->ensurePolished();
    const int around = m_list->width() - m_list->viewport()->width();
    m_list->setFixedWidth(std::max(kListWidth, m_list->sizeHintForColumn(0) + around));
}

void GalleryWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    FitList(); // the style is whole only now
}
