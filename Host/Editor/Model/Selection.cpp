// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Selection.h"

#include "Host/Editor/Model/Project.h"

#include <algorithm>

Selection::Selection(Project& project, QObject* parent) : QObject(parent), m_project(project)
{
    connect(&project, &Project::Replaced, this, &Selection::Clear);
    connect(&project, &Project::ClipsChanged, this, &Selection::ForgetRemoved);
}

NLEComPtr<INLETimeline> Selection::Current() const
{
    return m_clips.isEmpty() ? nullptr : m_clips.last();
}

bool Selection::Contains(INLETimeline* clip) const
{
    return std::any_of(m_clips.begin(), m_clips.end(),
                       [clip](const auto& selected) { return selected.get() == clip; });
}

void Selection::Set(const QVector<NLEComPtr<INLETimeline>>& clips)
{
    QVector<NLEComPtr<INLETimeline>> once;
    for (const NLEComPtr<INLETimeline>& clip : clips) {
        if (clip && !once.contains(clip))
            once << clip;
    }
    if (once == m_clips)
        return;
    m_clips = once;
    Q_EMIT Changed();
}

void Selection::Toggle(const NLEComPtr<INLETimeline>& clip)
{
    QVector<NLEComPtr<INLETimeline>> clips = m_clips;
    if (clips.removeAll(clip) == 0)
        clips << clip;
    Set(clips);
}

void Selection::ForgetRemoved()
{
    QVector<NLEComPtr<INLETimeline>> held;
    for (const NLEComPtr<INLETimeline>& clip : m_clips) {
        NLEComPtr<INLETimeline> parent;
        if (SUCCEEDED(clip->GetParent(parent.put())) && parent == m_project.Node())
            held << clip;
    }
    Set(held);
}
