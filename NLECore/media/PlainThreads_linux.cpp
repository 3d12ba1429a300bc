// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PlainThreads_p.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace nle {

namespace {

constexpr std::uint32_t kNiceBit = 1U << CAP_SYS_NICE;

/// Capabilities belong to a thread here (capabilities(7)); it may take what is permitted again.
/// The first of the two words holds CAP_SYS_NICE.
struct Capabilities
{
    __user_cap_header_struct head = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct words[_LINUX_CAPABILITY_U32S_3] = {};

    bool Read() { return syscall(SYS_capget, &head, words) == 0; }
    bool Write() { return syscall(SYS_capset, &head, words) == 0; }
};

} // namespace

PlainThreads::PlainThreads()
{
    Capabilities own;
    if (!own.Read() || (own.words[0].effective & kNiceBit) == 0)
        return;
    own.words[0].effective &= ~kNiceBit;
    m_hasTaken = own.Write();
}

PlainThreads::~PlainThreads()
{
    Capabilities own;
    if (!m_hasTaken || !own.Read())
        return;
    own.words[0].effective |= kNiceBit;
    own.Write();
}

} // namespace nle
