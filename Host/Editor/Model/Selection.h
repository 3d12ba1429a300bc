// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

#include <QObject>
#include <QVector>

class Project;

/// The clips that are selected in the open project; empties itself when the project is replaced and
/// forgets clips that are removed. Each stands in it once, in the order of being selected.
class Selection : public QObject
{
    Q_OBJECT

public:
    explicit Selection(Project& project, QObject* parent = nullptr);

    const QVector<NLEComPtr<INLETimeline>>& Clips() const { return m_clips; }
    /// The one that properties show: the last one selected; null when none is.
    NLEComPtr<INLETimeline> Current() const;
    bool Contains(INLETimeline* clip) const;
    void Set(const QVector<NLEComPtr<INLETimeline>>& clips);
    void Toggle(const NLEComPtr<INLETimeline>& clip);
    void Clear() { Set({}); }

Q_SIGNALS:
    void Changed();

private:
    void ForgetRemoved();

    Project& m_project;
    QVector<NLEComPtr<INLETimeline>> m_clips;
};
