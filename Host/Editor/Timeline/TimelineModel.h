// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipReader.h"
#include "Host/Editor/Timeline/LevelIndex.h"
#include "Host/Editor/Timeline/LevelState.h"

#include <QObject>

#include <map>
#include <unordered_map>

class Project;

/// A marker of the project.
struct MarkerRow
{
    int frame;
    int length; ///< 0 for an instant
    QColor colour;
};

/// The clips of the open project by level and frame. Follows the project's changes: what an edit
/// has not changed is not read again.
class TimelineModel : public QObject
{
    Q_OBJECT

public:
    /// \a project outlives the model.
    explicit TimelineModel(Project& project, QObject* parent = nullptr);
    ~TimelineModel() override;

    /// Clips and transitions.
    int Count() const { return static_cast<int>(m_rows.size()); }
    /// Levels up to the highest one that has clips.
    int LevelCount() const;
    /// End of the last clip, in frames.
    int Length() const;
    /// Clips of a level, and its transitions; empty for a level that has none.
    const LevelIndex& Clips(int level) const;
    const LevelIndex& Transitions(int level) const;
    /// The row of a node; null when it is none of the project's clips. Valid until it changes.
    const ClipRow* Find(INLETimeline* node) const;
    /// The transition, else the clip, that shows at \a frame; null when nothing does.
    const ClipRow* At(int level, double frame) const;
    /// Begins and ends of clips, nearest to \a frame in the direction of \a step (1 or -1); \a
    /// frame itself when there is none.
    int NextCut(int frame, int step) const;

    const QVector<MarkerRow>& Markers() const { return m_markers; }
    bool IsLocked(int level) const;
    LevelState StateOf(int level) const;
    /// Levels up to the highest one for which something is set.
    int SetLevelCount() const;
    /// Reads everything again, in another language for example.
    void Reload();

Q_SIGNALS:
    /// Rows have changed.
    void Changed();
    /// Markers, or what is set for levels, have changed.
    void MarkersChanged();
    void LevelsChanged();

private:
    struct Level
    {
        LevelIndex clips;
        LevelIndex transitions;
    };
    struct Change;

    void Update(const QVector<NLEComPtr<INLETimeline>>& nodes);
    void Follow(const NLEComPtr<INLETimeline>& node);
    void ReadMarkers();
    void ReadLevels();
    bool IsHeld(INLETimeline& node) const;

    Project& m_project;
    ClipReader m_reader;
    std::unordered_map<INLETimeline*, std::unique_ptr<ClipRow>> m_rows;
    std::map<int, Level> m_levels;
    QVector<MarkerRow> m_markers;
    QVector<LevelState> m_states; ///< of levels for which something is set
    bool m_isAnySolo = false;
};
