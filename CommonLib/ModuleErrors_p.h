// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QLibrary;

/// Keeps and logs why \a module did not load; that of a loaded one is forgotten. The same words are
/// logged once.
void NoteModule(const QLibrary& module);
