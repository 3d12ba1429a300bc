// SPDX-License-Identifier: LGPL-2.1-or-later
// Records of properties of a device: the input is a row of calls.
#include "Fuzz.h"
#include "PortableDevices/PropertyValues.h"

#include <string>

namespace {

void Call(devices::PropertyValues& values, fuzz::Input& input)
{
    const PROPERTYKEY key = {GUID{}, input.Take<std::uint8_t>() % 8U};
    switch (input.Take<std::uint8_t>() % 8) {
    case 0: {
        const std::wstring text =
            QString::fromUtf8(input.Take(input.Take<std::uint8_t>())).toStdWString();
        values.SetStringValue(key, text.c_str());
        break;
    }
    case 1: {
        QByteArray bytes = input.Take(input.Take<std::uint8_t>());
        values.SetBufferValue(key, reinterpret_cast<BYTE*>(bytes.data()), DWORD(bytes.size()));
        break;
    }
    case 2:
        values.SetUnsignedLargeIntegerValue(key, input.Take<ULONGLONG>());
        break;
    case 3: {
        LPWSTR text = nullptr;
        if (SUCCEEDED(values.GetStringValue(key, &text)))
            CoTaskMemFree(text);
        break;
    }
    case 4: {
        BYTE* bytes = nullptr;
        DWORD size = 0;
        if (SUCCEEDED(values.GetBufferValue(key, &bytes, &size)))
            CoTaskMemFree(bytes);
        break;
    }
    case 5: {
        PROPERTYKEY found = {};
        devices::Variant value;
        values.GetAt(input.Take<std::uint8_t>(), &found, value.Put());
        break;
    }
    case 6:
        values.RemoveValue(key);
        break;
    default:
        values.SetErrorValue(key, input.Take<HRESULT>());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const NLEComPtr<devices::PropertyValues> values = MakeCom<devices::PropertyValues>();
    while (!input.IsEmpty())
        Call(*values, input);
    DWORD count = 0;
    fuzz::Require(values->GetCount(&count) == S_OK && count <= 8, "a value for each key");
    return 0;
}
