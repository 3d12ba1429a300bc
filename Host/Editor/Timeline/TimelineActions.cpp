// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelineActions.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QKeySequence>
#include <QWidget>

TimelineActions::TimelineActions(QWidget* owner)
    : QObject(owner), m_owner(owner), m_choices(new QActionGroup(this))
{
}

QAction* TimelineActions::Add(const Entry& entry)
{
    auto* action = new QAction(m_owner);
    m_actions << action;
    m_entries << entry;
    action->setText(QCoreApplication::translate("Timeline", entry.text));
    action->setObjectName(QString::fromLatin1(entry.text));
    QList<QKeySequence> keys;
    for (const char* key : entry.keys)
        keys << QKeySequence(QString::fromLatin1(key));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [run = entry.run] { run(); });
    m_owner->addAction(action);
    return action;
}

QAction* TimelineActions::AddChoice(const Entry& entry)
{
    QAction* action = Add(entry);
    action->setCheckable(true);
    m_choices->addAction(action);
    return action;
}

QAction* TimelineActions::AddSwitch(const char* text, const QList<const char*>& keys,
                                    const std::function<void(bool)>& run)
{
    QAction* action = Add({text, keys, [] {}});
    action->setCheckable(true);
    action->setChecked(true);
    connect(action, &QAction::toggled, this, run);
    return action;
}

QList<QAction*> TimelineActions::Group(int number) const
{
    const int begin = m_groups[number];
    return m_actions.mid(begin, m_groups.value(number + 1, m_actions.size()) - begin);
}

void TimelineActions::SetUsable(Needs needs, bool usable)
{
    for (int index = 0; index < m_actions.size(); ++index) {
        if (m_entries[index].needs == needs)
            m_actions[index]->setEnabled(usable);
    }
}

void TimelineActions::SetTexts()
{
    for (int index = 0; index < m_actions.size(); ++index)
        m_actions[index]->setText(QCoreApplication::translate("Timeline", m_entries[index].text));
}
