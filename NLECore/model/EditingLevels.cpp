// SPDX-License-Identifier: LGPL-2.1-or-later
// What levels are called and which of them play.
#include "NLECore/model/Editing.h"

#include <algorithm>
#include <utility>

namespace nle {

namespace {

constexpr int kAllFlags = NLELevel_Hidden | NLELevel_Muted | NLELevel_Solo;

int FlagsOf(const LevelState& state)
{
    return (state.settings.hidden ? NLELevel_Hidden : 0) | (state.isMuted ? NLELevel_Muted : 0) |
           (state.settings.solo ? NLELevel_Solo : 0);
}

int NumberOf(int level)
{
    return level;
}
template <typename Settings>
int NumberOf(const std::pair<const int, Settings>& level)
{
    return level.first;
}

/// One more than the last of some levels, which are in order.
template <typename Levels>
int CountOf(const Levels& levels)
{
    return levels.empty() ? 0 : std::max(NumberOf(*levels.rbegin()), -1) + 1;
}

} // namespace

HRESULT Editing::SetLevel(const LevelState& before, const LevelState& now)
{
    if (IsSame(before.settings, now.settings) && before.isMuted == now.isMuted)
        return S_FALSE;
    return Edit([&now](EditDraft& draft) {
        draft.SetLevel(now);
        return S_OK;
    });
}

HRESULT Editing::GetCount(int* count)
{
    return Guarded([&] {
        const CompositeNode& composite = m_timeline.Composite();
        return GiveValue(count,
                         std::max({CountOf(composite.Levels()), CountOf(composite.Mixer().settings),
                                   CountOf(m_timeline.LockedLevels())}));
    });
}

HRESULT Editing::GetFlags(int level, int* flags)
{
    return WithLevel(level,
                     [flags](const LevelState& state) { return GiveValue(flags, FlagsOf(state)); });
}

HRESULT Editing::SetFlags(int level, int flags)
{
    if ((flags & ~kAllFlags) != 0)
        return RefuseRange("flags", 0, kAllFlags);
    return WithLevel(level, [&](const LevelState& before) {
        LevelState now = before;
        now.settings.hidden = (flags & NLELevel_Hidden) != 0;
        now.settings.solo = (flags & NLELevel_Solo) != 0;
        now.isMuted = (flags & NLELevel_Muted) != 0;
        return SetLevel(before, now);
    });
}

HRESULT Editing::GetName(int level, wchar_t* name, int capacity)
{
    return WithLevel(level, [&](const LevelState& state) {
        return CopyText(state.settings.name, name, capacity);
    });
}

HRESULT Editing::SetName(int level, const wchar_t* name)
{
    return WithLevel(level, [&](const LevelState& before) {
        LevelState now = before;
        now.settings.name = name ? name : L"";
        return SetLevel(before, now);
    });
}

HRESULT Editing::GetHeight(int level, int* height)
{
    return WithLevel(level, [height](const LevelState& state) {
        return GiveValue(height, state.settings.height);
    });
}

HRESULT Editing::SetHeight(int level, int height)
{
    return WithLevel(level, [&](const LevelState& before) {
        LevelSettings settings = before.settings;
        if (!SetField<&LevelSettings::height>(settings, height))
            return RefuseRange("height", 0, kMostLevelHeight);
        if (height == before.settings.height)
            return S_FALSE;
        PutSettings(m_timeline.Composite().Levels(), level, settings);
        return S_OK;
    });
}

} // namespace nle
