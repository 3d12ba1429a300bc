// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// True when standard output is a terminal, so that a line may be written over.
bool StandardOutputIsTerminal();
