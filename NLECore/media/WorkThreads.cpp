// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WorkThreads.h"

#include <QThread>

#include <algorithm>
#include <atomic>

namespace nle {

namespace {

std::atomic<int>& Allowed()
{
    static std::atomic<int> s_allowed{0};
    return s_allowed;
}

} // namespace

int WorkThreads(int most)
{
    const int allowed = Allowed();
    return std::clamp(allowed > 0 ? allowed : QThread::idealThreadCount(), 1, most);
}

int AllowedThreads()
{
    return Allowed();
}

void SetAllowedThreads(int count)
{
    Allowed() = count;
}

} // namespace nle
