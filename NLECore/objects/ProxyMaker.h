// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEProxies.h"
#include "NLECore/render/FilmWriter.h"
#include "NLECore/render/TaskThread.h"

#include <QString>

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace nle {

class FileClaim;

/// Makes proxies on a thread of its own.
class ProxyMaker final : public ComObject<INLEProxyMaker>
{
public:
    HRESULT SetFolder(const wchar_t* folder, std::int64_t quota) override;
    HRESULT SetHeight(int height) override;
    HRESULT Find(const wchar_t* file, wchar_t* proxy, int capacity) override;
    HRESULT Make(const wchar_t* file, NLEProxyCallback callback, void* userData) override;
    HRESULT Cancel(const wchar_t* file) override;

protected:
    ~ProxyMaker() override;

private:
    struct Job
    {
        QString path;
        std::wstring name; ///< as the host has it
        int height;
        NLEProxyCallback callback;
        void* userData;
        std::atomic<bool> isCancelled{false};
        std::atomic<bool> isSilent{false}; ///< nobody wants to know

        void Tell(HRESULT state, int percent) const;
    };

    static constexpr int kUsualHeight = 540;

    using Jobs = std::vector<std::shared_ptr<Job>>;
    /// What tasks use as well, which may outlast the object.
    struct State
    {
        std::mutex mutex; ///< guards the rest
        int height = kUsualHeight;
        Jobs jobs; ///< that wait or run

        int Height();
        void Forget(const std::shared_ptr<Job>& job);
    };

    static HRESULT Work(const Job& job);
    /// Waits until no other maker or process makes the proxy that \a lock is of.
    static HRESULT Take(FileClaim& claim, const Job& job);
    static HRESULT Write(const FilmPlan& film, const WriterSettings& settings, const QString& path,
                         const Job& job);

    const std::shared_ptr<State> m_state = std::make_shared<State>();
    TaskThread m_thread;
};

} // namespace nle
