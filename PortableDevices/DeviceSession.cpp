// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/DeviceSession.h"

#include "PortableDevices/GlibPointers.h"

namespace devices {

ObjectInfo DeviceInfo(const std::wstring& name)
{
    ObjectInfo info;
    info.id = kDeviceObject;
    info.name = name;
    info.kind = ObjectKind::Device;
    info.isComplete = true;
    return info;
}

double AutomationDate(std::int64_t seconds, std::int64_t microseconds)
{
    constexpr double kDaysTo1970 = 25569;
    const GPtr<GDateTime> time(g_date_time_new_from_unix_local(seconds));
    const std::int64_t offset = time ? g_date_time_get_utc_offset(time.get()) : 0;
    const double local = static_cast<double>(seconds * G_USEC_PER_SEC + microseconds + offset);
    return kDaysTo1970 + local / (24 * 3600.0 * G_USEC_PER_SEC);
}

} // namespace devices
