// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyField.h"
#include "Host/Editor/Properties/PropertyScope.h"

#include <QVector>
#include <QWidget>

#include <functional>

class QLabel;
class QScrollArea;
class QVBoxLayout;

/// The properties of the selected clip or transition, of the project when nothing is selected.
///
/// Project, selection and player must outlive it.
class PropertiesPanel : public QWidget
{
    Q_OBJECT

public:
    PropertiesPanel(Project& project, Selection& selection, MediaPlayer& player,
                    QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Builds the sections for what is selected now.
    void Rebuild();
    void RefreshIfShown(const NLEComPtr<INLETimeline>& node);
    void RefreshIfPlaced(const QVector<NLEComPtr<INLETimeline>>& clips);
    void Refresh();
    void AddProjectSections();
    void AddTransitionSections();
    void AddClipSections();
    void AddTitleButton();
    void AddMixer();
    void AddFields(const QString& title, const QVector<PropertyField>& fields);
    /// \a refresh is called whenever what is shown may have changed.
    void AddSection(const QString& title, QWidget* content, std::function<void()> refresh);
    PropertyScope Scope() const;
    bool HasSound() const;
    QString Title() const;

    Project& m_project;
    Selection& m_selection;
    MediaPlayer& m_player;
    NLEComPtr<INLETimeline> m_node; ///< what is shown
    QLabel* m_title;
    QScrollArea* m_scroll;
    QWidget* m_content = nullptr;
    QVBoxLayout* m_column = nullptr;
    QVector<std::function<void()>> m_refreshes;
    QVector<int> m_levels; ///< that the mixer shows
};
