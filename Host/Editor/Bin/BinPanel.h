// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/BinIntake.h"
#include "Host/Editor/Bin/BinModel.h"
#include "Host/Editor/Bin/BinPictures.h"
#include "Host/Editor/Bin/MediaBin.h"
#include "Host/Editor/Bin/ProxyJobs.h"

#include <QSortFilterProxyModel>
#include <QWidget>

class BinCommands;
class BinView;
class MediaPlayer;
class QLabel;
class QLineEdit;
class QToolButton;
class Selection;

/// The media of the project: to look through, to search, to add to, and to put on the timeline.
class BinPanel : public QWidget
{
    Q_OBJECT

public:
    /// All outlive the panel.
    BinPanel(Project& project, Selection& selection, MediaPlayer& player,
             QWidget* parent = nullptr);
    ~BinPanel() override;

    /// Adds files, and folders for all that is in and below them; what is no media is passed over.
    void Add(const QStringList& paths) { m_intake.Take(paths); }
    /// As BinCommands::Relink().
    bool Relink(const QString& file, const QString& found);
    /// What can be done, for menus of the window.
    BinCommands& Commands() { return *m_commands; }

private:
    void BuildLayout();
    void Connect();
    void SetTexts();
    void SetGrid(bool isGrid);
    void ShowHint();
    void ShowDetails();
    void Say(const QString& text);
    void SayProgress();
    void TakeIntakeEnd(int added, const QStringList& refused, const QString& reason);
    void TakeProxyEnd(const QString& file, const QString& proxy, const QString& reason);

    MediaBin m_bin;
    MediaDescriber m_describer;
    ProxyJobs m_proxies;
    int m_proxyStep = 0; ///< merges what ends while others are still made; 0: none
    BinIntake m_intake;
    BinPictures m_pictures;
    BinModel m_model;
    QSortFilterProxyModel m_shown; ///< what is searched for, by name

    // Children of the panel.
    QLineEdit* m_search;
    QToolButton* m_gridButton;
    QToolButton* m_listButton;
    QToolButton* m_addButton;
    BinView* m_view;
    QLabel* m_details;
    QLabel* m_status;
    BinCommands* m_commands;
};
