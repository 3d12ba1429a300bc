// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "tests/support/EngineFixture.h"

#include <functional>

/// What is left in a folder of a piece of work.
enum class Left
{
    Nothing,
    Old,
    New,
    Broken
};

/// What came of a piece of work.
struct Outcome
{
    bool isDone = false;
    bool hasReason = false; ///< why it was not done

    static Outcome Of(bool isDone) { return {isDone, !isDone}; }
};

/// A piece of work on files that may be stopped at any call.
struct Scenario
{
    const char* name;
    std::function<void()> prepare; ///< the old state, and what the work needs
    /// Makes ready what the work has in memory; what it gives makes the new state of the old.
    std::function<std::function<Outcome()>()> ready;
    std::function<Left()> look; ///< as a later start does
};

/// All of them, in the folder at \a path. Runs in a program of its own.
std::vector<Scenario> AllScenarios(EngineFixture& engine, const QString& path);
