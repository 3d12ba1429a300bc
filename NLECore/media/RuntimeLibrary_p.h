// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLibrary>

namespace nle {

/// A library of the system that is looked for at run time, and stays loaded.
struct RuntimeLibrary
{
    /// \a version is that of the binary interface, for systems that tell them apart by name.
    RuntimeLibrary(const QString& name, int version) : library(name, version) {}

    /// Takes over a function; isThere is false from then on when it is missing.
    template <typename Function>
    void Resolve(Function& function, const char* symbol)
    {
        function = reinterpret_cast<Function>(library.resolve(symbol));
        isThere = isThere && function;
    }

    QLibrary library;
    bool isThere = true; ///< with all functions
};

} // namespace nle
