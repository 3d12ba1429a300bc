// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PropertyTypes.h"
#include "PortableDevices/OpenDevice.h"

#include <mutex>

namespace devices {

/// Read-only stream over an object's data. The device reads the next piece while the caller writes
/// the last one away, so each stream holds two buffers of a step beside the caller's. What the
/// system holds in memory, of a local file, the caller reads itself, while the device is asked now
/// and then whether it is still there.
///
/// Once a read has failed, every later one fails the same way.
class ResourceStream final : public ComObject<IStream>
{
public:
    /// Opens \a resource of the object \a id; \a stepSize is the best size of a read.
    static HRESULT Open(std::shared_ptr<OpenDevice> device, const std::wstring& id,
                        Resource resource, std::uint32_t& stepSize, IStream** out);

    HRESULT QueryInterface(REFIID iid, void** out) override;

    HRESULT Read(void* data, ULONG count, ULONG* read) override;
    HRESULT Write(const void* data, ULONG count, ULONG* written) override;
    /// Relative to the start or the current position; there is no known end to count from.
    HRESULT Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position) override;
    HRESULT SetSize(ULARGE_INTEGER size) override;
    HRESULT CopyTo(IStream* target, ULARGE_INTEGER count, ULARGE_INTEGER* read,
                   ULARGE_INTEGER* written) override;
    HRESULT Commit(DWORD flags) override;
    HRESULT Revert() override;
    HRESULT LockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER count, DWORD type) override;
    HRESULT UnlockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER count, DWORD type) override;
    /// Tells the promised size and, of data in the local file system, a path to the open file.
    HRESULT Stat(STATSTG* out, DWORD flags) override;
    HRESULT Clone(IStream** out) override;

    explicit ResourceStream(std::shared_ptr<OpenDevice> device);

protected:
    ~ResourceStream() override;

private:
    struct Piece
    {
        std::vector<char> buffer;
        std::uint32_t filled = 0;
    };
    // What the device's thread works on while a step is under way.
    struct Source
    {
        std::unique_ptr<DataReader> reader;
        std::uint64_t position = 0; // where the reader stands
        Piece next;
    };

    HRESULT ReadHeld(void* data, ULONG count, ULONG& got);
    HRESULT ReadStep(void* data, ULONG count, ULONG& got);
    HRESULT MoveTo(std::uint64_t position);
    bool IsHeld(std::uint64_t position) const;
    // The step reads what follows the piece.
    void StartStep();
    void StartStepUnlessHeld();
    HRESULT FinishStep();
    HRESULT TakeStep();
    void DropStep();

    std::shared_ptr<OpenDevice> m_device;
    const std::shared_ptr<Source> m_source = std::make_shared<Source>();
    const unsigned m_cancelCount;
    // Set once, before the caller has the stream.
    std::uint64_t m_promisedSize = 0;
    std::string m_localPath; // to the open file; empty for what is not local

    struct Guarded
    {
        DeviceWorker::Pending step;
        DeviceWorker::Pending question; // whether the device is still there
        ULONG unasked = 0;              // bytes that were held since the last question
        Piece piece;                    // the last one that came
        std::uint32_t taken = 0;        // of it
        std::uint64_t position = 0;
        bool isAtEnd = false; // an empty step was the end; there is nothing more to ask for
        HRESULT failure = S_OK;

        std::uint64_t PieceEnd() const { return position + (piece.filled - taken); }
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices
