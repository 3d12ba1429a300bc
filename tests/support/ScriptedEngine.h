// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/ComObject.h"
#include "EngineApi/NLEComPtr.h"
#include "EngineApi/NLETypes.h"

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVariant>

/// An engine that does what a test tells it. Every object has a name; every call is recorded as
/// "name.Operation(arguments)" and answers with the status and the object that the script sets for
/// "name.Operation". The files beside this one hold the objects, a family each.
namespace Scripted {

/// Base of every scripted object: its name, and its place among the live ones.
class Named
{
public:
    const QString& name() const { return m_name; }

protected:
    explicit Named(const QString& name);
    ~Named();

private:
    const QString m_name;
};

/// What the engine does and what happened to it; one for the process. May be used from any thread.
class Script
{
public:
    static Script& Get();

    /// Forgets calls, statuses and results.
    void Reset();
    /// Status of "name.Operation" from now on; 0 unless set.
    void SetStatus(const QString& operation, HRESULT status);
    /// Object that "name.Operation" delivers from now on; without one it gives E_FAIL.
    void SetResult(const QString& operation, NLEComPtr<IUnknown> object);
    /// The calls since the last time, in order.
    QStringList TakeCalls();
    /// Names of the objects that are not destroyed yet, sorted.
    QStringList LiveObjects() const;

    HRESULT Record(const QString& operation, const QString& arguments);
    NLEComPtr<IUnknown> Result(const QString& operation) const;

private:
    friend class Named;

    mutable QMutex m_mutex;
    QStringList m_calls;
    QStringList m_live;
    QHash<QString, HRESULT> m_statuses;
    QHash<QString, NLEComPtr<IUnknown>> m_results;
};

/// What the engine's module exports.
HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** out);

/// References on \a object, as seen at this moment.
inline ULONG References(IUnknown* object)
{
    object->AddRef();
    return object->Release();
}

template <typename T>
QString Text(const T& value)
{
    if constexpr (std::is_convertible_v<T, const wchar_t*>) {
        return QString::fromWCharArray(value);
    } else if constexpr (std::is_pointer_v<T>) {
        const auto* named = dynamic_cast<const Named*>(value);
        return named ? named->name() : QStringLiteral("null");
    } else if constexpr (std::is_constructible_v<QVariant, T>) {
        return QVariant(value).toString();
    } else {
        return QString();
    }
}
/// The first group of an identifier.
inline QString Text(const _GUID& id)
{
    return QStringLiteral("%1").arg(id.Data1, 8, 16, QLatin1Char('0')).toUpper();
}
inline QString Text(const NLESize& size)
{
    return QStringLiteral("%1x%2").arg(size.width).arg(size.height);
}
inline QString Text(const NLERational& value)
{
    return QStringLiteral("%1/%2").arg(value.num).arg(value.den);
}
inline QString Text(const NLERange& range)
{
    return QStringLiteral("%1..%2").arg(range.in).arg(range.out);
}

/// Declares a \a field of a scripted object with its setter and getter.
#define SCRIPTED_SETTING(Type, field, Name)                                                        \
    Type field = {};                                                                               \
    HRESULT Set##Name(Type value) override                                                         \
    {                                                                                              \
        return Set("Set" #Name, field, value);                                                     \
    }                                                                                              \
    HRESULT Get##Name(Type* out) override                                                          \
    {                                                                                              \
        return Value("Get" #Name, field, out);                                                     \
    }

/// As SCRIPTED_SETTING, for a record that is set through a pointer.
#define SCRIPTED_RECORD(Type, field, Name)                                                         \
    Type field = {};                                                                               \
    HRESULT Set##Name(const Type* value) override                                                  \
    {                                                                                              \
        return Set("Set" #Name, field, *value);                                                    \
    }                                                                                              \
    HRESULT Get##Name(Type* out) override                                                          \
    {                                                                                              \
        return Value("Get" #Name, field, out);                                                     \
    }

/// A scripted object that implements \a Interfaces.
template <typename... Interfaces>
class Object : public ComObject<Interfaces...>, public Named
{
public:
    explicit Object(const QString& name) : Named(name) {}

protected:
    /// Records a call and gives its status.
    template <typename... Arguments>
    HRESULT Call(const char* operation, const Arguments&... arguments)
    {
        return Script::Get().Record(name() + '.' + operation,
                                    QStringList{Text(arguments)...}.join(", "));
    }
    /// As Call(); on success sets \a out.
    template <typename T, typename... Arguments>
    HRESULT Value(const char* operation, const T& value, T* out, const Arguments&... arguments)
    {
        const HRESULT status = Call(operation, arguments...);
        if (SUCCEEDED(status))
            *out = value;
        return status;
    }
    /// As Call(); on success sets \a field.
    template <typename T>
    HRESULT Set(const char* operation, T& field, const T& value)
    {
        const HRESULT status = Call(operation, value);
        if (SUCCEEDED(status))
            field = value;
        return status;
    }
    /// As Call(); on success delivers the script's object.
    template <typename T, typename... Arguments>
    HRESULT Give(const char* operation, T** out, const Arguments&... arguments)
    {
        *out = nullptr;
        const HRESULT status = Call(operation, arguments...);
        if (FAILED(status))
            return status;
        auto object = Script::Get().Result(name() + '.' + operation).template query<T>();
        *out = object.detach();
        return *out ? status : E_FAIL;
    }
    /// As Call(); on success writes \a text with its terminating zero, cut to \a capacity.
    HRESULT Write(const char* operation, const QString& text, wchar_t* buffer, int capacity)
    {
        const HRESULT status = Call(operation, capacity);
        if (SUCCEEDED(status) && capacity > 0)
            buffer[text.left(capacity - 1).toWCharArray(buffer)] = L'\0';
        return status;
    }
};

} // namespace Scripted
