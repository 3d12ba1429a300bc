// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEProperties.h"

#include <QMap>

/// Settings of a whole editing context, which every render of the project sees, by key.
///
/// The engine's context object, the basin, hands its settings out as a property bag and takes a bag
/// back; each setter stores at once. The basin is null until a subclass sets it. Without it every
/// getter and setter of a value gives false and two errors in the log. A getter that gives false
/// leaves its out-value as it was. Calls go to the basin on the caller's thread; nothing is locked.
class COMMONLIB_EXPORT NLETimelineContextPropertyService
{
public:
    NLETimelineContextPropertyService();
    NLETimelineContextPropertyService(const NLETimelineContextPropertyService& other);
    NLETimelineContextPropertyService& operator=(const NLETimelineContextPropertyService& other);

    // The order of the virtual operations is fixed.

    virtual ~NLETimelineContextPropertyService();
    /// A new bag with the context's settings; null without a basin. All getters and setters take
    /// their bag from here.
    virtual NLEComPtr<INLEProperties> GetContextProperty() const;
    /// Hands \a properties to the basin; nothing happens when either is null.
    virtual void SetContextProperty(NLEComPtr<INLEProperties> properties);

    /// As SetContextProperty(); true when the basin took them.
    bool SetProperty(NLEComPtr<INLEProperties> properties);
    bool GetIntValue(const wchar_t* key, int& value) const;
    bool SetIntValue(const wchar_t* key, int value);
    /// True for every integer but 0.
    bool GetBoolValue(const wchar_t* key, bool& value) const;
    /// Stores 1 or 0.
    bool SetBoolValue(const wchar_t* key, bool value);
    bool GetDoubleValue(const wchar_t* key, double& value) const;
    bool SetDoubleValue(const wchar_t* key, double value);
    /// All or nothing: the basin gets the bag once, when every value could be written into it.
    /// False for an empty map.
    bool SetDoubleValues(const QMap<const wchar_t*, double>& values);

protected:
    NLEComPtr<INLEBasin> m_basin; ///< of the context; may be null
};
