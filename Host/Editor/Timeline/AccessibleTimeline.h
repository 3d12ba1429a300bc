// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The clips of a TimelineView as objects of their own for assistive programs: name, place, whether
/// they are selected, and actions that select them.
namespace AccessibleTimeline {

/// Has all views offer them from then on. Any number of calls.
void Install();

} // namespace AccessibleTimeline
