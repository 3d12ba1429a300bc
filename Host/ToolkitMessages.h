// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/// While it lives, messages of the toolkit and of the engine, which uses the toolkit's channel, go
/// to the log instead of standard error. Needs an open log; one at a time.
class ToolkitMessages
{
public:
    ToolkitMessages();
    ~ToolkitMessages();
    ToolkitMessages(const ToolkitMessages&) = delete;
    ToolkitMessages& operator=(const ToolkitMessages&) = delete;

private:
    QtMessageHandler m_previous;
};
