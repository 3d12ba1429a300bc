// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QVector>
#include <QWidget>

class LevelHeader;
class LevelLayout;
class TimelineModel;

/// The heads of all levels, beside a timeline view and scrolling with it.
class LevelHeaders : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kWidth = 140;

    /// \a levels and \a model outlive the headers.
    LevelHeaders(const LevelLayout& levels, const TimelineModel& model, QWidget* parent = nullptr);

    /// Follows the layout. \a scrolled pixels of it are above the view. In a window that shows, new
    /// heads come one in each turn of the event loop.
    void Arrange(int scrolled);

Q_SIGNALS:
    void LockAsked(int level, bool locked);
    /// \a flag is one of NLELevelFlags.
    void FlagAsked(int level, int flag, bool on);
    void NameAsked(int level, const QString& name);
    void HeightAsked(int level, int pixels);
    /// The levels are to go up by \a pixels, for what has the focus now.
    void ScrollAsked(int pixels);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    void SetStates();
    LevelHeader* Make(int level);
    void PlaceHeads();

    const LevelLayout& m_levels;
    const TimelineModel& m_model;
    QWidget* m_area; ///< below the height of the view's strip
    QVector<LevelHeader*> m_headers;
    int m_scrolled = 0;
    QBasicTimer m_makes;
};
