// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditedTimeline.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/scene/FrameMath.h"

#include <utility>

namespace nle {

EditedTimeline::EditedTimeline(CompositeNode& composite, Editing& editing)
    : m_owner(editing), m_composite(&composite), m_rate(composite.FrameRate())
{
    for (const NLEComPtr<TimelineNode>& clip : composite.Clips()) {
        m_index.Put(*clip);
        m_groups.Put(*clip);
    }
    composite.SetWatch(this);
}

EditedTimeline::~EditedTimeline()
{
    m_composite->SetWatch(nullptr);
}

bool EditedTimeline::TakeForeign()
{
    const NLERational rate = std::exchange(m_rate, m_composite->FrameRate());
    return std::exchange(m_isForeign, false) || ToDouble(rate) != ToDouble(m_rate);
}

std::set<int> EditedTimeline::LockedLevels() const
{
    const std::vector<int> levels = m_composite->Bag().NumbersIn(NLEKey::Editing::kLockedLevels);
    return {levels.begin(), levels.end()};
}

LevelState EditedTimeline::LevelOf(int level) const
{
    const MixerSettings& mixer = m_composite->Mixer().settings;
    const auto strip = mixer.find(level);
    const bool hasStrip = strip != mixer.end();
    return {level, SettingsOf(m_composite->Levels(), level), hasStrip && strip->second.mute != 0,
            hasStrip};
}

void EditedTimeline::ClipPlaced(TimelineNode& clip)
{
    if (!m_index.Has(clip))
        m_groups.Put(clip);
    m_index.Put(clip);
    m_isForeign = m_isForeign || m_ours == 0;
}

void EditedTimeline::ClipGoes(TimelineNode& clip)
{
    m_index.Remove(clip);
    m_groups.Remove(clip);
    m_isForeign = m_isForeign || m_ours == 0;
}

} // namespace nle
