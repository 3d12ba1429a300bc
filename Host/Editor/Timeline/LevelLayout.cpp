// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelLayout.h"

#include <algorithm>

void LevelLayout::SetHeight(int level, int height)
{
    m_heights[level] = std::clamp(height, kLeast, kMost);
}

int LevelLayout::Top(int level) const
{
    int top = 0;
    for (int above = m_count - 1; above > level; --above)
        top += Height(above);
    return top;
}

int LevelLayout::TotalHeight() const
{
    return Top(-1);
}

int LevelLayout::LevelAt(int y) const
{
    int bottom = 0;
    for (int level = m_count - 1; level > 0; --level) {
        bottom += Height(level);
        if (y < bottom)
            return level;
    }
    return 0;
}
