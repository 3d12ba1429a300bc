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
        const char* text; ///< in the translation context "Timeline"; null for a separator
        QList<const char*> keys;
        std::function<void()> run;
        Needs needs = Needs::Nothing;
    };

    /// The actions are \a owner's, which gets their keys.
    explicit TimelineActions(QWidget* owner);

    QAction* Add(const Entry& entry);
    /// One of several of which one is on; \a run is called when it comes on.
    QAction* AddChoice(const Entry& entry);
    /// One that is on or off, on at first.
    QAction* AddSwitch(const char* text, const QList<const char*>& keys,
                       const std::function<void(bool)>& run);

    const QList<QAction*>& All() const { return m_actions; }
    void SetUsable(Needs needs, bool usable);
    void SetTexts();

private:
    QWidget* m_owner;
    QActionGroup* m_choices;
    QList<QAction*> m_actions;
    QList<Entry> m_entries; ///< of the actions
};
