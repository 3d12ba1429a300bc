// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/ProxyJobs.h"

#include "Com/WideText.h"
#include "EngineApi/INLEFactory.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/EngineText.h"

NLEComPtr<INLEProxyMaker> MakeProxyMaker()
{
    NLEComPtr<INLEProxyMaker> maker;
    const NLEComPtr<INLEFactory> factory = EngineFactory();
    if (factory && FAILED(factory->CreateProxyMaker(maker.put())))
        maker.forget();
    return maker;
}

ProxyJobs::ProxyJobs(QObject* parent) : QObject(parent), m_maker(MakeProxyMaker()) {}

// The maker is released first of all: no call comes afterwards.
ProxyJobs::~ProxyJobs()
{
    m_maker.reset();
}

void ProxyJobs::Make(const QString& file)
{
    if (!m_maker || m_percents.contains(file))
        return;
    m_percents[file] = 0;
    if (FAILED(m_maker->Make(file.toStdWString().c_str(), &ProxyJobs::Tell, this)))
        TakeEnd(file, E_FAIL, LastReason());
    else
        Q_EMIT Progressed(file);
}

void ProxyJobs::Cancel(const QString& file)
{
    if (m_maker)
        m_maker->Cancel(file.toStdWString().c_str());
}

// On a thread of the engine.
void ProxyJobs::Tell(const wchar_t* file, HRESULT state, int percent, void* userData)
{
    auto* self = static_cast<ProxyJobs*>(userData);
    const QString path = FromWide(file);
    if (state == S_FALSE) {
        QMetaObject::invokeMethod(self, [self, path, percent] {
            self->m_percents[path] = percent;
            Q_EMIT self->Progressed(path);
        });
        return;
    }
    const QString reason = FAILED(state) && state != E_ABORT ? LastReason() : QString();
    QMetaObject::invokeMethod(self,
                              [self, path, state, reason] { self->TakeEnd(path, state, reason); });
}

void ProxyJobs::TakeEnd(const QString& file, HRESULT state, const QString& reason)
{
    m_percents.remove(file);
    std::array<wchar_t, 4096> proxy{};
    const bool isFound = SUCCEEDED(state) && m_maker->Find(file.toStdWString().c_str(),
                                                           proxy.data(), int(proxy.size())) == S_OK;
    Q_EMIT Ended(file, isFound ? FromWide(proxy) : QString(), reason);
}
