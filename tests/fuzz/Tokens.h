// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

#include <random>

namespace fuzz {

/// A copy of \a text, which is JSON or XML, with one change that leaves its structure whole: a
/// value is replaced, or an object, a list or an element is left out, repeated or put in the place
/// of another one. Bytes that are changed at random seldom get past a reader's first look.
QByteArray ChangeTokens(const QByteArray& text, std::minstd_rand& random);

} // namespace fuzz
