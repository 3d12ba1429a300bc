// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "Com/NLEComPtr.h"
#include "EngineApi/NLETypes.h"

#include <QHash>
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
    const QString& Name() const { return m_name; }

protected:
    explicit Named(const QString& name);
    ~Named();

private:
    const QString m_name;
};

/// What the engine does and what happened to it; one for the process.
class Script
{
public:
    static Script& Get();

    /// Status of "name.Operation"; 0 unless set.
    QHash<QString, HRESULT> statuses;
    /// Object that "name.Operation" delivers; without one it gives E_FAIL.
    QHash<QString, NLEComPtr<IUnknown>> results;
    /// Names of the objects that are not destroyed yet.
    QStringList liveObjects;

    /// Forgets calls, statuses and results.
    void Reset();
    /// The calls since the last time, in order.
    QStringList TakeCalls() { return std::exchange(m_calls, {}); }
    HRESULT Record(const QString& operation, const QString& arguments);

private:
    QStringList m_calls;
};

/// What the engine's module exports.
HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** out);

/// References on \a object, as seen at this moment.
inline ULONG References(IUnknown* object)
{
    object->AddRef();
    return object->Release();
}

/// Of 32 bits on Windows only, so that QVariant has no constructor for it.
inline QString Text(unsigned long value)
{
    return QString::number(value);
}
template <typename T>
QString Text(const T& value)
{
    if constexpr (std::is_convertible_v<T, const wchar_t*>) {
        return QString::fromWCharArray(value);
    } else if constexpr (std::is_pointer_v<T>) {
        const auto* named = dynamic_cast<const Named*>(value);
        return named ? named->Name() : QStringLiteral("null");
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
inline QString Text(const NLEKeyFrameRecord& r)
{
    QString text;
    for (const double number : {r.time, r.angle, r.positionX, r.positionY, r.scaleWidth,
                                r.scaleHeight, r.opacity, double(r.interpolation)})
        text += QString::number(number) + ' ';
    return text.trimmed();
}

/// Declares a \a field of a scripted object with its getter.
#define SCRIPTED_VALUE(Type, field, Name)                                                          \
    Type field = {};                                                                               \
    HRESULT Get##Name(Type* out) override                                                          \
    {                                                                                              \
        return Value("Get" #Name, field, out);                                                     \
    }

/// As SCRIPTED_VALUE, with a setter.
#define SCRIPTED_SETTING(Type, field, Name)                                                        \
    SCRIPTED_VALUE(Type, field, Name)                                                              \
    HRESULT Set##Name(Type value) override                                                         \
    {                                                                                              \
        return Set("Set" #Name, field, value);                                                     \
    }

/// As SCRIPTED_SETTING, for a record that is set through a pointer.
#define SCRIPTED_RECORD(Type, field, Name)                                                         \
    SCRIPTED_VALUE(Type, field, Name)                                                              \
    HRESULT Set##Name(const Type* value) override                                                  \
    {                                                                                              \
        return Set("Set" #Name, field, *value);                                                    \
    }

/// As SCRIPTED_VALUE, for a text that is copied into a buffer.
#define SCRIPTED_TEXT(field, Name)                                                                 \
    QString field;                                                                                 \
    HRESULT Get##Name(wchar_t* buffer, int capacity) override                                      \
    {                                                                                              \
        return WriteText("Get" #Name, field, buffer, capacity);                                    \
    }

/// Declares an operation that delivers the script's object.
#define SCRIPTED_OBJECT(Type, Name)                                                                \
    HRESULT Name(Type** out) override                                                              \
    {                                                                                              \
        return Give(#Name, out);                                                                   \
    }

/// As SCRIPTED_OBJECT, of one \a Argument.
#define SCRIPTED_OBJECT_FROM(Argument, Type, Name)                                                 \
    HRESULT Name(Argument argument, Type** out) override                                           \
    {                                                                                              \
        return Give(#Name, out, argument);                                                         \
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
        return Script::Get().Record(Name() + '.' + operation,
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
        return Value(operation, value, &field, value);
    }
    /// As Call(); on success delivers the script's object.
    template <typename T, typename... Arguments>
    HRESULT Give(const char* operation, T** out, const Arguments&... arguments)
    {
        *out = nullptr;
        const HRESULT status = Call(operation, arguments...);
        if (FAILED(status))
            return status;
        auto object = Script::Get().results.value(Name() + '.' + operation).template query<T>();
        *out = object.detach();
        return *out ? status : E_FAIL;
    }
    /// As Call(); on success writes \a text with its terminating zero, cut to \a capacity.
    HRESULT WriteText(const char* operation, const QString& text, wchar_t* buffer, int capacity)
    {
        const HRESULT status = Call(operation, capacity);
        if (SUCCEEDED(status) && capacity > 0)
            buffer[text.left(capacity - 1).toWCharArray(buffer)] = L'\0';
        return status;
    }
};

} // namespace Scripted
