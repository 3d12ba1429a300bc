// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <algorithm>
#include <vector>

/// The middle one of \a values, of which there is at least one; of an even number the greater of
/// the two in the middle.
inline double Median(std::vector<double> values)
{
    const auto middle =
        values.begin() + static_cast<std::vector<double>::difference_type>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
