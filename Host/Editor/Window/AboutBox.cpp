// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/AboutBox.h"

#include "CommonLib/CBSUrlReader.h"
#include "CommonLib/MultiLangMgr.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("AboutBox", text);
}

/// The edition's lines; empty without data of customisation.
QString Edition()
{
    CBSUrlReader reader(nullptr);
    const QString group = MultiLangMgr::GetInstance()->GetSimpleName1();
    const QString product = reader.ReadCustomerUrl(group, QStringLiteral("PID"));
    const QString page = reader.ReadCustomerUrl(group, QStringLiteral("HomePage")).toHtmlEscaped();
    QString text;
    if (!product.isEmpty())
        text +=
            Translated(QT_TRANSLATE_NOOP("AboutBox", "Product: %1")).arg(product.toHtmlEscaped()) +
            QStringLiteral("<br>");
    if (!page.isEmpty())
        text += QStringLiteral("<a href=\"%1\">%1</a>").arg(page);
    return text;
}

} // namespace

void ShowAbout(QWidget* window)
{
    QMessageBox box(window);
    box.setWindowTitle(Translated(QT_TRANSLATE_NOOP("AboutBox", "About")));
    box.setTextFormat(Qt::RichText);
    box.setText(QStringLiteral("<b>%1 %2</b><br>%3")
                    .arg(QStringLiteral("CommonLib Editor"),
                         QCoreApplication::applicationVersion().toHtmlEscaped(),
                         Translated(QT_TRANSLATE_NOOP(
                             "AboutBox", "A small editor that shows what the library does."))));
    box.setInformativeText(Edition());
    box.exec();
}
