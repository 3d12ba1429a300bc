// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/BinModel.h"

#include <QObject>
#include <QPointer>

#include <vector>

class BinIntake;
class BinView;
class ImportDialog;
class MediaBin;
class MediaPlayer;
class Project;
class QAction;
class QMenu;
class QWidget;
class Selection;

/// What can be done with a bin, as menus, for the files that are selected in its view.
class BinCommands : public QObject
{
    Q_OBJECT

public:
    /// All outlive the commands.
    struct Parts
    {
        Project& project;
        Selection& selection;
        MediaPlayer& player;
        MediaBin& bin;
        BinIntake& intake;
        ProxyJobs& proxies;
        BinModel& model;
        BinView& view;
    };

    /// \a window owns menus and dialogs.
    BinCommands(const Parts& parts, QWidget* window);

    QMenu* AddMenu() const { return m_addMenu; }
    QMenu* ItemMenu() const { return m_itemMenu; }
    /// Texts in the language of now, and what can be done enabled.
    void Update();

    /// The lost file \a file is \a found now; others that are offline are looked for beside it. One
    /// step; false when the engine cannot read one of them.
    bool Relink(const QString& file, const QString& found);

Q_SIGNALS:
    /// Something that people should know.
    void Said(const QString& text);

private:
    using Run = void (BinCommands::*)();
    using Question = bool (BinCommands::*)() const;
    struct Command
    {
        QAction* action;
        QString (*text)();
        Question isEnabled; ///< null: always
        Question isChecked; ///< null: never
    };

    void Add(QMenu* menu, QString (*text)(), Run run, Question isEnabled = nullptr,
             Question isChecked = nullptr);
    void FillAddMenu();
    void FillItemMenu();
    void ConnectKeys();

    QVector<BinItem> Selected() const;
    BinItem Current() const;
    bool IsAny(bool (*test)(const BinItem& item)) const;
    QStringList Offline() const;
    bool HasCurrent() const;
    bool CanMark() const;
    bool HasMarks() const;
    bool HasUnused() const;
    bool HasAnyUnused() const;
    bool IsOffline() const;
    bool HasAnyOffline() const;
    bool CanMakeProxy() const;
    bool IsMakingProxy() const;
    bool HasProxy() const;
    bool UsesProxy() const;

    void AddFiles();
    void AddFolder();
    void ImportFromDevice();
    void Place();
    void Mark(bool isIn);
    void MarkIn() { Mark(true); }
    void MarkOut() { Mark(false); }
    void ClearMarks();
    void MakeProxies();
    void CancelProxies();
    void SwitchProxies();
    void Locate();
    void SearchFolder();
    void Remove();
    void RemoveAllUnused();
    bool RelinkAll(const QHash<QString, QString>& moved);

    Parts m_parts;
    QWidget* m_window;
    QMenu* m_addMenu;
    QMenu* m_itemMenu;
    std::vector<Command> m_commands;
    QPointer<ImportDialog> m_import; ///< made when it is first asked for
};
