// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

class IMediaPlayerControl;
class PlayerMaterProvider;

/// What NLEWraper holds; a child of the wrapper.
class NLEWraperPrivate : public QObject
{
    Q_OBJECT

public:
    explicit NLEWraperPrivate(QObject* parent);

private:
    friend class NLEWraper; // reads and sets the fields

    PlayerMaterProvider* m_provider; ///< child of this object
    IMediaPlayerControl* m_playerControl = nullptr;
};
