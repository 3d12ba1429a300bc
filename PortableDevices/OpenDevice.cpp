// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/OpenDevice.h"

namespace devices {
namespace {

HRESULT RemoveTree(DeviceSession& session, const std::wstring& id, GCancellable* cancellable)
{
    std::vector<ObjectInfo> children;
    if (const HRESULT result = session.List(id, children, cancellable); FAILED(result))
        return result;
    for (const ObjectInfo& child : children) {
        if (const HRESULT result = RemoveTree(session, child.id, cancellable); FAILED(result))
            return result;
    }
    return session.Remove(id, cancellable);
}

} // namespace

OpenDevice::OpenDevice(std::wstring id, std::unique_ptr<DeviceSession> session)
    : m_id(std::move(id)), m_worker(std::move(session))
{
}

HRESULT OpenDevice::List(const std::wstring& parent, std::vector<std::wstring>& children)
{
    {
        // Who walks the content asks for the children of every object.
        const std::lock_guard lock(m_mutex);
        if (parent == m_guarded.lastFile)
            return S_OK;
    }
    const auto infos = std::make_shared<std::vector<ObjectInfo>>();
    const HRESULT result =
        m_worker.Run([parent, infos](DeviceSession& session, GCancellable* cancellable) {
            return session.List(parent, *infos, cancellable);
        });
    if (FAILED(result))
        return result;
    children.reserve(infos->size());
    const std::lock_guard lock(m_mutex);
    for (ObjectInfo& info : *infos) {
        children.push_back(info.id);
        if (info.isComplete)
            m_guarded.known.insert_or_assign(info.id, std::move(info));
    }
    return S_OK;
}

bool OpenDevice::TakeKnown(const std::wstring& id, ObjectInfo& info)
{
    const std::lock_guard lock(m_mutex);
    const auto known = m_guarded.known.find(id);
    if (known == m_guarded.known.end())
        return false;
    info = std::move(known->second);
    m_guarded.known.erase(known);
    if (info.kind == ObjectKind::File)
        m_guarded.lastFile = id;
    return true;
}

HRESULT OpenDevice::Describe(const std::wstring& id, ObjectInfo& info)
{
    if (TakeKnown(id, info))
        return S_OK;
    const auto answer = std::make_shared<ObjectInfo>();
    const HRESULT result =
        m_worker.Run([id, answer](DeviceSession& session, GCancellable* cancellable) {
            return session.Describe(id, *answer, cancellable);
        });
    if (SUCCEEDED(result))
        info = std::move(*answer);
    return result;
}

HRESULT OpenDevice::Remove(const std::wstring& id, bool isRecursive)
{
    ObjectInfo forgotten;
    TakeKnown(id, forgotten);
    return m_worker.Run([id, isRecursive](DeviceSession& session, GCancellable* cancellable) {
        return isRecursive ? RemoveTree(session, id, cancellable) : session.Remove(id, cancellable);
    });
}

} // namespace devices
