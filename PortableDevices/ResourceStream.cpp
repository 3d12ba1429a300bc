// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/ResourceStream.h"

#include "Com/ComGuard.h"
#include "PortableDevices/PropertyValues.h"
#include "PortableDevices/WideText.h"

#include <algorithm>
#include <cstring>

namespace devices {
namespace {

// Of Stat().
constexpr DWORD kStreamType = 2;
constexpr DWORD kNoName = 1;
/// Bytes that are read from memory between two questions to the device.
constexpr ULONG kAskEvery = 1U << 20;

} // namespace

HRESULT ResourceStream::Open(std::shared_ptr<OpenDevice> device, const std::wstring& id,
                             Resource resource, std::uint32_t& stepSize, IStream** out)
{
    OpenDevice& opened = *device;
    const NLEComPtr<ResourceStream> stream = MakeCom<ResourceStream>(std::move(device));
    const std::shared_ptr<Source> source = stream->m_source;
    const HRESULT result = opened.Worker().Run(
        [id, resource, source](DeviceSession& session, GCancellable* cancellable) {
            return session.OpenData(id, resource, source->reader, cancellable);
        });
    if (FAILED(result))
        return result;
    stream->m_promisedSize = source->reader->PromisedSize();
    stream->m_localPath = source->reader->LocalPath();
    stepSize = stream->m_localPath.empty() ? kTransferSize : kLocalTransferSize;
    stream->m_guarded.piece.buffer.resize(stepSize);
    source->next.buffer.resize(stepSize);
    stream->StartStepUnlessHeld();
    return NLEComPtr<IStream>(stream).copyTo(out);
}

ResourceStream::ResourceStream(std::shared_ptr<OpenDevice> device)
    : m_device(std::move(device)), m_cancelCount(m_device->Worker().CancelCount())
{
}

ResourceStream::~ResourceStream()
{
    if (m_guarded.step.cancellable)
        g_cancellable_cancel(m_guarded.step.cancellable.get());
    // Without memory the reader ends with the last who has it.
    ComGuard([this] {
        m_device->Worker().StartCleanup([source = m_source] { source->reader.reset(); });
        return S_OK;
    });
}

HRESULT ResourceStream::QueryInterface(REFIID iid, void** out)
{
    const bool isBase = iid == InterfaceId<ISequentialStream>();
    return ComObject::QueryInterface(isBase ? InterfaceId<IStream>() : iid, out);
}

bool ResourceStream::IsHeld(std::uint64_t position) const
{
    char byte = 0;
    return m_source->reader->ReadHeld(&byte, 1, position) > 0;
}

void ResourceStream::StartStep()
{
    m_guarded.step =
        m_device->Worker().Start([source = m_source, position = m_guarded.PieceEnd()](
                                     DeviceSession& /*session*/, GCancellable* cancellable) {
            Piece& next = source->next;
            next.filled = 0;
            HRESULT result = S_OK;
            if (source->position != position) // the caller has read on by itself
                result = source->reader->Seek(position, cancellable);
            if (SUCCEEDED(result))
                result = source->reader->Read(next.buffer.data(),
                                              static_cast<std::uint32_t>(next.buffer.size()),
                                              next.filled, cancellable);
            source->position = position + next.filled;
            return result;
        });
}

void ResourceStream::StartStepUnlessHeld()
{
    if (!IsHeld(m_guarded.PieceEnd()))
        StartStep();
}

HRESULT ResourceStream::FinishStep()
{
    const HRESULT result = m_device->Worker().Finish(m_guarded.step);
    m_guarded.step = {};
    return result;
}

void ResourceStream::DropStep()
{
    if (!m_guarded.step.result.valid())
        return;
    g_cancellable_cancel(m_guarded.step.cancellable.get());
    FinishStep();
}

HRESULT ResourceStream::TakeStep()
{
    if (const HRESULT result = FinishStep(); FAILED(result))
        return result;
    std::swap(m_guarded.piece, m_source->next);
    m_guarded.taken = 0;
    m_guarded.isAtEnd = m_guarded.piece.filled == 0;
    if (!m_guarded.isAtEnd)
        StartStepUnlessHeld();
    return S_OK;
}

// The answer has time until the next question.
HRESULT ResourceStream::ReadHeld(void* data, ULONG count, ULONG& got)
{
    DeviceWorker& worker = m_device->Worker();
    if (m_guarded.unasked >= kAskEvery) {
        m_guarded.unasked = 0;
        if (m_guarded.question.result.valid()) {
            if (const HRESULT result = worker.Finish(m_guarded.question); FAILED(result))
                return result;
        }
        m_guarded.question =
            worker.Start([](DeviceSession& /*session*/, GCancellable* /*unused*/) { return S_OK; });
    }
    got = m_source->reader->ReadHeld(data, count, m_guarded.position);
    m_guarded.unasked += got;
    return S_OK;
}

HRESULT ResourceStream::ReadStep(void* data, ULONG count, ULONG& got)
{
    Piece& piece = m_guarded.piece;
    if (m_guarded.taken == piece.filled && !m_guarded.isAtEnd) {
        const bool isUnderWay = m_guarded.step.result.valid();
        HRESULT result = isUnderWay ? S_OK : ReadHeld(data, count, got);
        if (SUCCEEDED(result) && !isUnderWay && got == 0)
            StartStep();
        if (SUCCEEDED(result) && got == 0)
            result = TakeStep();
        if (FAILED(result))
            return result;
    }
    if (const HRESULT result = m_device->Worker().ResultSince(m_cancelCount); FAILED(result))
        return result;
    if (got == 0) {
        got = std::min(count, piece.filled - m_guarded.taken);
        std::memcpy(data, piece.buffer.data() + m_guarded.taken, got);
        m_guarded.taken += got;
    }
    return S_OK;
}

HRESULT ResourceStream::MoveTo(std::uint64_t position)
{
    DropStep();
    m_guarded.piece.filled = 0;
    m_guarded.taken = 0;
    const HRESULT result = m_device->Worker().Run(
        [source = m_source, position](DeviceSession& /*session*/, GCancellable* cancellable) {
            source->position = position;
            return source->reader->Seek(position, cancellable);
        });
    if (FAILED(result))
        return result;
    m_guarded.position = position;
    m_guarded.isAtEnd = false;
    StartStepUnlessHeld();
    return S_OK;
}

HRESULT ResourceStream::Read(void* data, ULONG count, ULONG* read)
{
    if (read)
        *read = 0;
    if (!data)
        return E_POINTER;
    const std::lock_guard lock(m_mutex);
    if (SUCCEEDED(m_guarded.failure))
        m_guarded.failure = m_device->Worker().ResultSince(m_cancelCount);
    if (FAILED(m_guarded.failure))
        return m_guarded.failure;
    ULONG got = 0;
    m_guarded.failure = ComGuard([&] { return ReadStep(data, count, got); });
    if (SUCCEEDED(m_guarded.failure) && got == 0 && count > 0 &&
        m_guarded.position < m_promisedSize)
        m_guarded.failure = kCutShort;
    if (FAILED(m_guarded.failure))
        return m_guarded.failure;
    m_guarded.position += got;
    if (read)
        *read = got;
    return got > 0 || count == 0 ? S_OK : S_FALSE;
}

HRESULT ResourceStream::Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position)
{
    const std::lock_guard lock(m_mutex);
    if (FAILED(m_guarded.failure))
        return m_guarded.failure;
    if (origin > 1)
        return STG_E_INVALIDFUNCTION;
    const std::int64_t base = origin == 0 ? 0 : static_cast<std::int64_t>(m_guarded.position);
    const std::int64_t target = base + move.QuadPart;
    if (target < 0)
        return STG_E_INVALIDFUNCTION;
    if (static_cast<std::uint64_t>(target) != m_guarded.position) {
        m_guarded.failure = ComGuard([&] { return MoveTo(static_cast<std::uint64_t>(target)); });
        if (FAILED(m_guarded.failure))
            return m_guarded.failure;
    }
    if (position)
        position->QuadPart = m_guarded.position;
    return S_OK;
}

HRESULT ResourceStream::Write(const void* /*data*/, ULONG /*count*/, ULONG* written)
{
    if (written)
        *written = 0;
    return STG_E_ACCESSDENIED;
}

HRESULT ResourceStream::SetSize(ULARGE_INTEGER /*size*/)
{
    return STG_E_ACCESSDENIED;
}

HRESULT ResourceStream::CopyTo(IStream* /*target*/, ULARGE_INTEGER /*count*/,
                               ULARGE_INTEGER* /*read*/, ULARGE_INTEGER* /*written*/)
{
    return E_NOTIMPL;
}

HRESULT ResourceStream::Commit(DWORD /*flags*/)
{
    return S_OK;
}

HRESULT ResourceStream::Revert()
{
    return E_NOTIMPL;
}

HRESULT ResourceStream::LockRegion(ULARGE_INTEGER /*offset*/, ULARGE_INTEGER /*count*/,
                                   DWORD /*type*/)
{
    return STG_E_INVALIDFUNCTION;
}

HRESULT ResourceStream::UnlockRegion(ULARGE_INTEGER /*offset*/, ULARGE_INTEGER /*count*/,
                                     DWORD /*type*/)
{
    return STG_E_INVALIDFUNCTION;
}

HRESULT ResourceStream::Stat(STATSTG* out, DWORD flags)
{
    return ComGuard([&] {
        if (!out)
            return E_POINTER;
        *out = {};
        out->type = kStreamType;
        out->cbSize.QuadPart = m_promisedSize;
        if (!m_localPath.empty() && !(flags & kNoName))
            out->pwcsName = TaskText(WideText(m_localPath.c_str()).c_str());
        return S_OK;
    });
}

HRESULT ResourceStream::Clone(IStream** out)
{
    GiveValue<IStream*>(out, nullptr);
    return E_NOTIMPL;
}

} // namespace devices
