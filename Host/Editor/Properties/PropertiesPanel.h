// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyField.h"
#include "Host/Editor/Properties/PropertyScope.h"
#include "Host/Editor/Properties/PropertySection.h"

#include <QBasicTimer>
#include <QSet>
#include <QVector>
#include <QWidget>

#include <deque>
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
    void timerEvent(QTimerEvent* event) override;

private:
    /// Builds the sections for what is selected now; in a window that shows one in each turn of the
    /// event loop, and they take the place of the former ones when all are there.
    void Rebuild();
    void RebuildIfOther();
    void StartContent();
    void BuildNext();
    void ShowContent();
    void RefreshIfShown(const NLEComPtr<INLETimeline>& node);
    void RefreshIfPlaced(const QVector<NLEComPtr<INLETimeline>>& clips);
    void Refresh();
    void FollowPlayHead();
    void AddProjectSections();
    void AddTransitionSections();
    void AddClipSections();
    void AddTitleButton();
    void AddMixer();
    /// Of a level that has clips, by its name, else its number.
    QString StripTitle(int level) const;
    QStringList StripTitles() const;
    void AddFields(const QString& title, const QVector<PropertyField>& fields, bool isOpen = true);
    /// Open unless \a isOpen is false, or the user has folded the last one of that title.
    void AddSection(const QString& title, const PropertySection::Make& make, bool isOpen = true);
    template <typename Section>
    void AddSection(const QString& title);
    template <typename Content>
    Content* Watched(Content* content);
    void NoteFold(const QString& title, bool isOpen);
    void FitWidth();
    PropertyScope Scope() const;
    bool HasSound() const;
    QString Title() const;

    /// What shows values that others change.
    struct Shown
    {
        QWidget* widget;
        std::function<void()> refresh;
        std::function<void()> followPlayHead; ///< what depends on it alone
    };

    Project& m_project;
    Selection& m_selection;
    MediaPlayer& m_player;
    NLEComPtr<INLETimeline> m_node; ///< what is shown
    QLabel* m_title;
    QScrollArea* m_scroll;
    QWidget* m_content = nullptr;
    QWidget* m_former = nullptr; ///< shows until the sections of m_content are built
    QVBoxLayout* m_column = nullptr;
    std::deque<std::function<void()>> m_unbuilt; ///< sections of m_content
    QBasicTimer m_builds;
    QVector<Shown> m_shown;
    QSet<QString> m_folded; ///< titles of sections that the user has folded, or opened
    QSet<QString> m_opened;
    QStringList m_strips; ///< titles of those of the mixer
};
