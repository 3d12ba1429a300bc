// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLEWraper.h"

#include "CommonLib/NLEWraper/NLEWraper_p.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"

namespace {
NLEWraper* s_instance = nullptr;
}

NLEWraperPrivate::NLEWraperPrivate(QObject* parent)
    : QObject(parent), m_provider(new PlayerMaterProvider(this))
{
}

NLEWraper::NLEWraper(QObject* parent) : QObject(parent), m_private(new NLEWraperPrivate(this)) {}

NLEWraper::~NLEWraper()
{
    // The parent may delete the wrapper as well.
    s_instance = nullptr;
}

NLEWraper* NLEWraper::GetInstance(QObject* parent)
{
    if (!s_instance)
        s_instance = new NLEWraper(parent);
    return s_instance;
}

void NLEWraper::Release()
{
    delete s_instance;
}

PlayerMaterProvider* NLEWraper::GetPlayerMaterProvider() const
{
    return m_private->m_provider;
}

IMediaPlayerControl* NLEWraper::GetMeidaPlayerControl() const
{
    return m_private->m_playerControl;
}

void NLEWraper::SetMeidaPlayerControl(IMediaPlayerControl* control)
{
    m_private->m_playerControl = control;
}
