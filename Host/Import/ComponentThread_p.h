// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// While it lives, the thread that made it may use component objects.
class ComponentThread
{
public:
    ComponentThread();
    ~ComponentThread();
    ComponentThread(const ComponentThread&) = delete;
    ComponentThread& operator=(const ComponentThread&) = delete;
};
