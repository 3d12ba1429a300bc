// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QActionGroup;
class QWidget;

/// Actions for all that the timeline can do, with their keys, which count while the keyboard is
/// with the timeline.
class TimelineActions : public QObject
{
    Q_OBJECT

public:
    /// When an action can be used.
    enum class Needs
    {
        Nothing,
        Selection,
        Copy ///< something to paste
    };
    struct Entry
    {
        const char* text; ///< in the translation context "Timeline"
        QList<const char*> keys;
        std::function<void()> run;
        Needs needs = Needs::Nothing;
    };

    /// The actions are \a owner's, which gets their keys.
    explicit TimelineActions(QWidget* owner);

    /// What is added from now on is another group.
    void BeginGroup() { m_groups << m_actions.size(); }
    QAction* Add(const Entry& entry);
    /// One of several of which one is on; \a run is called when it comes on.
    QAction* AddChoice(const Entry& entry);
    /// One that is on or off, on at first.
    QAction* AddSwitch(const char* text, const QList<const char*>& keys,
                       const std::function<void(bool)>& run);

    const QList<QAction*>& All() const { return m_actions; }
    /// Those of a group, from 0 in the order of BeginGroup().
    QList<QAction*> Group(int number) const;
    void SetUsable(Needs needs, bool usable);
    void SetTexts();

private:
    QWidget* m_owner;
    QActionGroup* m_choices;
    QList<QAction*> m_actions;
    QVector<int> m_groups;  ///< where they begin
    QList<Entry> m_entries; ///< of the actions
};
