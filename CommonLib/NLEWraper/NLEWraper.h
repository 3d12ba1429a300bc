// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QObject>

class IMediaPlayerControl;
class NLEWraperPrivate;
class PlayerMaterProvider;

/// Owner of the process-wide provider of engine objects; its creation starts the engine.
///
/// Created without a lock: call GetInstance() on the GUI thread first.
class COMMONLIB_EXPORT NLEWraper : public QObject
{
    Q_OBJECT

public:
    /// The one wrapper. The first call creates it with the given parent and starts the engine;
    /// later parents are ignored. It ends with Release() or with that parent, whichever comes
    /// first.
    static NLEWraper* GetInstance(QObject* parent);
    /// Deletes the wrapper and its provider; GetInstance() starts afresh.
    static void Release();

    /// Never null; owned by the wrapper.
    PlayerMaterProvider* GetPlayerMaterProvider() const;

    /// The host's player control as it was set, null before; never owned.
    IMediaPlayerControl* GetMeidaPlayerControl() const;
    void SetMeidaPlayerControl(IMediaPlayerControl* control);

private:
    explicit NLEWraper(QObject* parent);
    ~NLEWraper() override;

    NLEWraperPrivate* m_private;
};
