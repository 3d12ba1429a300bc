// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMap>

/// Where levels stand, one above the other, the highest on top. Heights are pixels.
class LevelLayout
{
public:
    static constexpr int kLeast = 22;
    static constexpr int kPreset = 62;
    static constexpr int kMost = 240;

    void SetCount(int levels) { m_count = levels; }
    int Count() const { return m_count; }
    int Height(int level) const { return m_heights.value(level, kPreset); }
    void SetHeight(int level, int height);
    /// All levels have the preset again.
    void ForgetHeights() { m_heights.clear(); }
    /// Distance of a level's upper edge from that of the highest one.
    int Top(int level) const;
    int TotalHeight() const;
    /// The level at \a y, the nearest one outside of all.
    int LevelAt(int y) const;

private:
    int m_count = 1;
    QMap<int, int> m_heights; ///< those that are not the preset
};
