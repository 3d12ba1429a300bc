// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/ExportCheck.h"

#include "Com/ThreadPriority.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEFrames.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/EncodePresets.h"

namespace {

constexpr int kPause = 300; // milliseconds without another wish

/// Why \a settings cannot be combined; empty when they can.
QString Complaint(const NLEComPtr<INLEFactory>& factory, const NLEComPtr<INLEMediaEncoder>& encoder,
                  const NLEComPtr<INLEProperties>& options, const NLEEncodeSettings& settings)
{
    const Reasons reasons(factory);
    const auto catalog = encoder.query<INLEEncodeCatalog>();
    if (!catalog || SUCCEEDED(catalog->Check(options.get(), &settings, nullptr, 0)))
        return {};
    return reasons.Of(ExportCheck::tr("This cannot be combined"));
}

} // namespace

ExportCheck::ExportCheck(QObject* parent) : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &ExportCheck::Begin);
}

ExportCheck::~ExportCheck()
{
    m_thread.clear();
    m_thread.waitForDone();
}

void ExportCheck::Ask(const ExportOrder& order)
{
    m_order = order;
    ++m_number;
    m_pause.start();
}

void ExportCheck::Begin()
{
    PlayerMaterProvider& provider = EngineProvider();
    const auto encoder = provider.CreateMediaEncoder();
    const auto options = EncodePresets::Settings(provider, encoder, m_order.preset);
    if (!encoder || !options) {
        Q_EMIT Told(tr("There is no such preset."));
        return;
    }
    m_thread.clear();
    m_thread.start([this, factory = EngineFactory(), encoder, options, number = m_number,
                    settings = m_order.settings] {
        LowerThreadPriority();
        const QString complaint = Complaint(factory, encoder, options, settings);
        const auto tell = [this, number, complaint] {
            if (number == m_number)
                Q_EMIT Told(complaint);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}
