// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/// While it lives, messages of Qt and of the engine, which uses Qt's channel, go to the log instead
/// of standard error. Needs an open log; one at a time.
class QtMessages
{
public:
    QtMessages();
    ~QtMessages();
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;

private:
    QtMessageHandler m_previous;
};
