// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/Player.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/render/TaskThread.h"

namespace nle {

namespace {

constexpr int kLongestSide = 16384;
constexpr double kLoudest = 4;
constexpr int kMostOffset = 1000;

HRESULT NoNode()
{
    return Refuse(E_FAIL, NLEReason_WrongState);
}

/// What the loop answers to what needs a node.
HRESULT OfNode(HRESULT result)
{
    return result == E_FAIL ? NoNode() : result;
}

} // namespace

HRESULT PlayedFrame::GetSize(NLESize* size)
{
    return GiveValue(size, {m_image.width(), m_image.height()});
}

HRESULT PlayedFrame::GetValidRect(NLERect* rect)
{
    return GiveValue(rect, {0, 0, m_image.width(), m_image.height()});
}

HRESULT PlayedFrame::SetValidRect(const NLERect* rect)
{
    return rect ? Refuse(E_NOTIMPL) : Refuse(E_POINTER);
}

HRESULT PlayedFrame::GetData(std::uint8_t** pixels)
{
    // The interface has no other way to read; INLEPlayerListener forbids to write.
    return GiveValue(pixels, const_cast<std::uint8_t*>(m_image.constBits()));
}

HRESULT PlayedFrame::GetMemory(int* memory)
{
    return GiveValue(memory, int(NLEMemory_System));
}

void Player::Voice::SetListener(INLEPlayerListener* listener, bool isWithin)
{
    std::unique_lock<std::mutex> calling(m_calling, std::defer_lock);
    if (!isWithin)
        calling.lock();
    NLEComPtr<INLEPlayerListener> former(listener);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listener.swap(former);
}

template <typename Call>
void Player::Voice::Tell(Call&& call)
{
    const std::lock_guard<std::mutex> calling(m_calling);
    NLEComPtr<INLEPlayerListener> listener;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        listener = m_listener;
    }
    if (listener)
        ComGuard([&] { return call(*listener); });
}

void Player::Voice::PictureDue(const PlayPicture& picture)
{
    Tell([&](INLEPlayerListener& listener) {
        NLEComPtr<PlayedFrame> frame;
        if (!picture.image.isNull())
            frame = MakeCom<PlayedFrame>(picture.image);
        return listener.PictureDue(picture.frame, picture.source, frame.get());
    });
}

void Player::Voice::StateChanged(int state)
{
    Tell([=](INLEPlayerListener& listener) { return listener.StateChanged(state); });
}

void Player::Voice::DeviceChanged()
{
    Tell([](INLEPlayerListener& listener) { return listener.DeviceChanged(); });
}

void Player::Voice::SecondPlayed(const NLEPlayerReport& report)
{
    Tell([&](INLEPlayerListener& listener) { return listener.SecondPlayed(&report); });
}

Player::Player()
{
    if (!m_core->loop.Start())
        throw std::bad_alloc();
}

// The last reference may go within a call of the listener; another thread then waits for the end.
// Where there is none the core stays, as its threads use it.
Player::~Player()
{
    if (!m_core->loop.IsOwnThread())
        return;
    Core* const core = m_core.get();
    core->self = std::move(m_core);
    std::thread ender = StartThread([core] { const auto last = std::move(core->self); });
    if (ender.joinable())
        ender.detach();
}

HRESULT Player::SetListener(INLEPlayerListener* listener)
{
    return ComGuard([&] {
        m_core->voice.SetListener(listener, m_core->loop.IsPlayerThread());
        return S_OK;
    });
}

SharedScene Player::SceneOf(const TimelineNode& node)
{
    auto scene = std::make_shared<PlayScene>();
    scene->root = node.MakeSnapshot();
    scene->length = node.TotalLength();
    if (const auto* composite = dynamic_cast<const CompositeNode*>(&node))
        scene->cached = composite->OpenCachedFrames(scene->root);
    return scene->length > 0 && IsRate(scene->root->frameRate) ? scene : nullptr;
}

HRESULT Player::Open(INLETimeline* timeline)
{
    return ComGuard([&] {
        TimelineNode* node = TimelineNode::From(timeline);
        SharedScene scene = node ? SceneOf(*node) : nullptr;
        if (!scene)
            return Refuse(E_INVALIDARG);
        m_core->loop.Open(std::move(scene));
        m_node = NLEComPtr<TimelineNode>(node);
        return S_OK;
    });
}

HRESULT Player::Refresh()
{
    return ComGuard([&] {
        SharedScene scene = m_node ? SceneOf(*m_node) : nullptr;
        return scene && m_core->loop.Refresh(std::move(scene)) ? S_OK : NoNode();
    });
}

HRESULT Player::Close()
{
    return ComGuard([&] {
        if (m_node)
            m_core->loop.Close();
        m_node.reset();
        return S_OK;
    });
}

HRESULT Player::Play(double rate)
{
    return ComGuard([&] { return OfNode(m_core->loop.Play(rate)); });
}

HRESULT Player::Pause()
{
    return ComGuard([&] { return OfNode(m_core->loop.Pause()); });
}

HRESULT Player::Seek(int frame)
{
    return ComGuard([&] { return OfNode(m_core->loop.Seek(frame)); });
}

HRESULT Player::Step(int frames)
{
    return ComGuard([&] { return OfNode(m_core->loop.Step(frames)); });
}

HRESULT Player::Scrub(int frame)
{
    return ComGuard([&] { return OfNode(m_core->loop.Scrub(frame)); });
}

HRESULT Player::SetLoop(int first, int last, bool on)
{
    return ComGuard([&] { return OfNode(m_core->loop.SetLoop({first, last}, on)); });
}

HRESULT Player::GetState(int* state)
{
    return GiveValue(state, m_core->loop.State());
}

HRESULT Player::GetPosition(int* frame)
{
    const int position = m_core->loop.Position();
    return position < 0 ? NoNode() : GiveValue(frame, position);
}

HRESULT Player::GetRate(double* rate)
{
    return GiveValue(rate, m_core->loop.Rate());
}

HRESULT Player::GetLength(int* frames)
{
    const int length = m_core->loop.Length();
    return length < 0 ? NoNode() : GiveValue(frames, length);
}

HRESULT Player::SetPictureSize(int width, int height)
{
    const auto isSide = [](int length) { return length > 0 && length <= kLongestSide; };
    const bool isPreset = width == 0 && height == 0;
    if (!isPreset && !(isSide(width) && isSide(height)))
        return Refuse(E_INVALIDARG);
    return ComGuard([&] {
        m_core->loop.SetPictureSize(isPreset ? QSize() : QSize(width, height));
        return S_OK;
    });
}

HRESULT Player::SetVolume(double volume)
{
    if (!(volume >= 0 && volume <= kLoudest))
        return Refuse(E_INVALIDARG);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.volume = volume;
    ApplyVolume();
    return S_OK;
}

void Player::ApplyVolume()
{
    m_core->loop.SetGain(m_guarded.isMute ? 0.0f : float(m_guarded.volume));
}

HRESULT Player::GetVolume(double* volume)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return GiveValue(volume, m_guarded.volume);
}

HRESULT Player::SetMute(bool mute)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.isMute = mute;
    ApplyVolume();
    return S_OK;
}

HRESULT Player::GetMute(bool* mute)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return GiveValue(mute, m_guarded.isMute);
}

HRESULT Player::GetSoundDeviceCount(int* count)
{
    return ComGuard([&] {
        const std::shared_ptr<SoundSystem> system = SoundSystem::Start();
        QStringList names = system ? system->Names() : QStringList();
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_guarded.devices = std::move(names);
        return GiveValue(count, int(m_guarded.devices.size()));
    });
}

HRESULT Player::GetSoundDeviceName(int index, wchar_t* name, int capacity)
{
    return ComGuard([&] {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (index < 0 || index >= m_guarded.devices.size())
            return Refuse(E_INVALIDARG);
        return CopyText(m_guarded.devices[index].toStdWString(), name, capacity);
    });
}

HRESULT Player::SetSoundDevice(const wchar_t* name)
{
    return ComGuard([&] {
        m_core->loop.SetDevice(FromWide(name));
        return S_OK;
    });
}

HRESULT Player::GetSoundDevice(wchar_t* name, int capacity)
{
    return ComGuard([&] {
        bool isSilent = true;
        const QString device = m_core->loop.DeviceName(&isSilent);
        const HRESULT result = CopyText(device.toStdWString(), name, capacity);
        return SUCCEEDED(result) && isSilent ? S_FALSE : result;
    });
}

HRESULT Player::SetSoundOffset(int milliseconds)
{
    if (milliseconds < -kMostOffset || milliseconds > kMostOffset)
        return Refuse(E_INVALIDARG);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.offset = milliseconds;
    m_core->loop.SetSoundOffset(milliseconds);
    return S_OK;
}

HRESULT Player::GetSoundOffset(int* milliseconds)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return GiveValue(milliseconds, m_guarded.offset);
}

HRESULT Player::GetReport(NLEPlayerReport* report)
{
    if (!report)
        return Refuse(E_POINTER);
    return m_core->loop.LastSecond(report) ? S_OK : S_FALSE;
}

HRESULT Player::GetTotals(NLEPlayerReport* report)
{
    if (!report)
        return Refuse(E_POINTER);
    m_core->loop.Totals(report);
    return S_OK;
}

HRESULT Player::GetLevels(NLEPlayerLevels* levels)
{
    if (!levels)
        return Refuse(E_POINTER);
    return ComGuard([&] {
        m_core->loop.Levels(levels);
        return S_OK;
    });
}

HRESULT Player::ResetClipping()
{
    m_core->loop.ResetClipping();
    return S_OK;
}

} // namespace nle
