// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QObject>

class Project;
class QAction;
class QMenu;
class QWidget;

/// New, open, save and what was open before, with the dialogs for it. Changes that are not saved
/// are asked for.
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /// \a window is what dialogs stand above; it owns this.
    FileCommands(Project& project, QWidget& window);

    /// For a menu; null between groups. Owned by the window.
    QList<QAction*> Actions() const { return m_actions; }
    QMenu* Recent() const { return m_recent; }

    void New();
    void Open();
    /// Asks first, as all do that leave what is open.
    bool Open(const QString& path);
    bool Save();
    bool SaveAs();
    /// Whether the user lets go of what is open: it is saved, or need not be.
    bool MayLeave();

private:
    template <typename Act>
    QAction* Add(const char* text, const QKeySequence& keys, Act act);
    void ShowRecent();
    void NoteRecent();

    Project& m_project;
    QWidget& m_window;
    QList<QAction*> m_actions;
    QMenu* m_recent;
};
