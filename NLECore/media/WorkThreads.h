// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace nle {

/// Threads that one piece of work may have: as many as the host allows, else as the system has
/// processors; at least one, at most \a most.
int WorkThreads(int most);
/// What the host allows; 0 leaves it to the system.
int AllowedThreads();
void SetAllowedThreads(int count);

} // namespace nle
