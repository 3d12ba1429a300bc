// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What OpenGL runs on.
enum class GraphicsCard
{
    None,     ///< there is no OpenGL that a widget could use
    Software, ///< the processor, in a card's place
    Hardware
};

/// Tried once in a process, on the first call; GUI thread only.
GraphicsCard FindGraphicsCard();
