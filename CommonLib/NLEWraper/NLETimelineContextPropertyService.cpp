// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimelineContextPropertyService.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"

namespace {

// Fixed in the log.
constexpr int kBasinLine = 1180;
constexpr int kPropertyLine = 1185;

void LogMissing(int line, const char* message)
{
    GetGlobalLogInstance()->LogError("CommonLib/NLEWraper/NLETimeline",
                                     "NLETimelineContextPropertyService::GetContextProperty", line,
                                     "%s", message);
}

} // namespace

NLETimelineContextPropertyService::NLETimelineContextPropertyService() = default;
NLETimelineContextPropertyService::NLETimelineContextPropertyService(
    const NLETimelineContextPropertyService& other) = default;
NLETimelineContextPropertyService::~NLETimelineContextPropertyService() = default;

NLETimelineContextPropertyService&
NLETimelineContextPropertyService::operator=(const NLETimelineContextPropertyService& other)
{
    if (m_basin != other.m_basin)
        m_basin = other.m_basin;
    return *this;
}

NLEComPtr<INLEProperties> NLETimelineContextPropertyService::GetContextProperty() const
{
    NLEComPtr<INLEProperties> properties;
    if (m_basin) {
        properties =
            NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->CreateNLEProperties();
        if (properties)
            m_basin->FillProperties(properties.get());
    } else {
        LogMissing(kBasinLine, "basin is null");
    }
    if (!properties)
        LogMissing(kPropertyLine, "context property is null");
    return properties;
}

void NLETimelineContextPropertyService::SetContextProperty(NLEComPtr<INLEProperties> properties)
{
    SetProperty(std::move(properties));
}

bool NLETimelineContextPropertyService::SetProperty(NLEComPtr<INLEProperties> properties)
{
    return m_basin && properties && SUCCEEDED(m_basin->TakeProperties(properties.get()));
}

bool NLETimelineContextPropertyService::GetIntValue(const wchar_t* key, int& value) const
{
    const auto properties = GetContextProperty();
    int found = value;
    if (!properties || FAILED(properties->GetInt(key, &found)))
        return false;
    value = found;
    return true;
}

bool NLETimelineContextPropertyService::SetIntValue(const wchar_t* key, int value)
{
    const auto properties = GetContextProperty();
    return properties && SUCCEEDED(properties->SetInt(key, value)) && SetProperty(properties);
}

bool NLETimelineContextPropertyService::GetBoolValue(const wchar_t* key, bool& value) const
{
    int number = 0;
    if (!GetIntValue(key, number))
        return false;
    value = number != 0;
    return true;
}

bool NLETimelineContextPropertyService::SetBoolValue(const wchar_t* key, bool value)
{
    return SetIntValue(key, value ? 1 : 0);
}

bool NLETimelineContextPropertyService::GetDoubleValue(const wchar_t* key, double& value) const
{
    const auto properties = GetContextProperty();
    double found = value;
    if (!properties || FAILED(properties->GetDouble(key, &found)))
        return false;
    value = found;
    return true;
}

bool NLETimelineContextPropertyService::SetDoubleValue(const wchar_t* key, double value)
{
    const auto properties = GetContextProperty();
    return properties && SUCCEEDED(properties->SetDouble(key, value)) && SetProperty(properties);
}

bool NLETimelineContextPropertyService::SetDoubleValues(const QMap<const wchar_t*, double>& values)
{
    // With nothing to write a basin is left alone; a missing one is reported all the same.
    if (values.isEmpty() && m_basin)
        return false;
    const auto properties = GetContextProperty();
    if (!properties || values.isEmpty())
        return false;
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (FAILED(properties->SetDouble(value.key(), value.value())))
            return false;
    }
    return SetProperty(properties);
}
