// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/LanguageMenu.h"

#include "CommonLib/MultiLangMgr.h"
#include "Host/HostLanguage.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QActionGroup>

LanguageMenu::LanguageMenu(QWidget* parent) : QMenu(parent)
{
    auto* group = new QActionGroup(this);
    const Language_Locale current = MultiLangMgr::GetInstance()->GetLangLocale();
    int count = 0;
    const LangConstInfo* rows = GetGlobalLangConstInfos(count);
    for (int row = 0; row < count; ++row) {
        const LangConstInfo& info = rows[row];
        QAction* action = addAction(QStringLiteral("%1 (%2)").arg(
            HostLanguage::LocaleOf(info).nativeLanguageName(), info.englishName));
        action->setCheckable(true);
        action->setChecked(info.locale == current);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [locale = info.locale] { HostLanguage::Select(locale); });
    }
    KeepTranslated(this, [this] { setTitle(tr("Language")); });
}
