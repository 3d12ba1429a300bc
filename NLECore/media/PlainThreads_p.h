// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace nle {

/// While it is there, the calling thread cannot be made a real-time one, nor can those that it
/// starts. Libraries that encode do that where they may, in a process of the administrator, and
/// then nothing else runs on the machine for as long as they work.
class PlainThreads
{
public:
    PlainThreads();
    ~PlainThreads();
    PlainThreads(const PlainThreads&) = delete;
    PlainThreads& operator=(const PlainThreads&) = delete;

private:
    /// From the thread what makes others real-time; gives it back.
    [[maybe_unused]] bool m_hasTaken = false;
};

} // namespace nle
