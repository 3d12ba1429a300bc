// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QTimer>

class MediaPlayer;
class Project;

/// Moves the play head of a project and marks what it passes. The player has the project open and
/// takes over what was edited, once for all edits of a turn of the event loop.
class Transport : public QObject
{
    Q_OBJECT

public:
    static constexpr int kNoPoint = -1;

    Transport(Project& project, MediaPlayer& player, QObject* parent);

    // ---- Playing

    /// From the beginning when the play head stands at the end.
    void TogglePlay();
    void Pause();
    /// Plays forwards, or backwards; at twice the speed, up to 8, where it does already.
    void PlayForwards() { Hurry(1); }
    void PlayBackwards() { Hurry(-1); }
    void StepForward();
    void StepBack();
    void GoToBegin();
    void GoToEnd();
    /// Limited to what plays.
    void GoTo(int frame);

    // ---- In and out point, the first and the last frame of a range; each may be missing. The
    // project keeps them, and each change is a step.

    struct Points
    {
        int in = kNoPoint;
        int out = kNoPoint;
    };
    int InPoint() const { return m_points.in; }
    int OutPoint() const { return m_points.out; }
    /// At the play head. A point that would lie on the wrong side of it goes.
    void SetInPoint();
    void SetOutPoint();
    void ClearPoints();
    void GoToInPoint();
    void GoToOutPoint();
    /// Whether the range, or all where a point is missing, plays over and over.
    bool IsLooping() const { return m_isLooping; }
    void SetLooping(bool on);

    /// Sets a marker of the project at the play head, or removes the one that is there.
    void ToggleMarker();

Q_SIGNALS:
    void PointsChanged();

private:
    void Hurry(int direction);
    int Last() const;
    /// \a text is a title of the player's actions.
    void SetPoints(const char* text, Points points);
    /// Those of the project.
    void TakePoints();
    void ApplyLoop();
    void OpenLater();
    void Update();

    Project& m_project;
    MediaPlayer& m_player;
    QTimer m_update;
    Points m_points;
    bool m_isLooping = false;
};
