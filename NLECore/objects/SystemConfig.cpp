// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/SystemConfig.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/PropertyBag.h"

namespace nle {

namespace {

constexpr std::int64_t kMebibyte = 1 << 20;
constexpr int kMostMebibytes = 65536;

/// Holds nothing itself: reads and writes what counts.
class SystemBag final : public PropertyBag
{
protected:
    std::optional<Value> Read(std::wstring_view key) const override
    {
        if (key == NLEKey::System::kHardwareDecoding)
            return int(HardwareDecoding());
        if (key == NLEKey::System::kDecodedPictures)
            return int(KeptPictures().MaxBytes() / kMebibyte);
        return std::nullopt;
    }
    HRESULT Write(std::wstring_view key, Value value) override
    {
        const int* const number = std::get_if<int>(&value);
        const auto isUpTo = [number](int most) {
            return number && *number >= 0 && *number <= most;
        };
        if (key == NLEKey::System::kHardwareDecoding && isUpTo(NLEHardware_All))
            SetHardwareDecoding(NLEHardwareDecoding(*number));
        else if (key == NLEKey::System::kDecodedPictures && isUpTo(kMostMebibytes))
            KeptPictures().SetMaxBytes(*number * kMebibyte);
        else
            return Refuse(E_INVALIDARG, NLEReason_OutOfRange,
                          QString::fromWCharArray(key.data(), int(key.size())));
        return S_OK;
    }
};

} // namespace

HRESULT SystemConfig::GetProperties(INLEProperties** properties)
{
    return GiveNew<SystemBag>(properties);
}

} // namespace nle
