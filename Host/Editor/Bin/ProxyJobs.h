// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEProxies.h"

#include <QHash>
#include <QObject>

/// A maker of proxies with the engine's presets; null without an engine.
NLEComPtr<INLEProxyMaker> MakeProxyMaker();

/// The engine's maker of proxies for a GUI thread.
class ProxyJobs : public QObject
{
    Q_OBJECT

public:
    explicit ProxyJobs(QObject* parent = nullptr);
    /// Cancels what is being made.
    ~ProxyJobs() override;

    /// Begins a proxy of \a file, unless one is on its way.
    void Make(const QString& file);
    void Cancel(const QString& file);
    bool IsBusy() const { return !m_percents.isEmpty(); }
    /// 0 to 100; -1 when none is on its way.
    int Percent(const QString& file) const { return m_percents.value(file, -1); }

Q_SIGNALS:
    void Progressed(const QString& file);
    /// \a proxy is its path; it is empty, and \a reason for people, when none was made. Both are
    /// empty when it was cancelled.
    void Ended(const QString& file, const QString& proxy, const QString& reason);

private:
    static void Tell(const wchar_t* file, HRESULT state, int percent, void* userData);
    void TakeEnd(const QString& file, HRESULT state, const QString& reason);

    NLEComPtr<INLEProxyMaker> m_maker; ///< null without an engine
    QHash<QString, int> m_percents;
};
