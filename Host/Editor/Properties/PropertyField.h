// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEffects.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

class ParameterKeys;

/// A change of something in the project, and what takes it back. Both may be called any number of
/// times, in turns.
struct PropertyChange
{
    std::function<bool()> redo;
    std::function<bool()> undo;
};

/// One value of a node as a row of the panel shows it: a declaration, from which the row is made.
///
/// Values are numbers (also of switches, choices and colours) or texts, in the units of the
/// engine; what is shown is \a factor times as much.
struct PropertyField
{
    QString title;
    int kind = NLEParameter_Number; ///< an NLEParameterKind
    double lowest = 0;
    double highest = 1;
    QVariant preset;
    double factor = 1;
    QString suffix; ///< of the number that is shown
    QStringList choices;
    bool isFont = false;  ///< a text that names a family of fonts
    bool isFixed = false; ///< shows only

    std::function<QVariant()> value;
    /// The change to another value, made from what is there now.
    std::function<PropertyChange(const QVariant&)> change;
    std::shared_ptr<ParameterKeys> keys; ///< null for what cannot have key frames
};

/// The change of a value that a pair of functions reads and writes.
template <typename Get, typename Set>
void SetAccess(PropertyField& field, Get get, Set set)
{
    field.value = [get] { return QVariant(get()); };
    field.change = [get, set](const QVariant& value) {
        const QVariant before = get();
        return PropertyChange{[set, value] { return set(value); },
                              [set, before] { return set(before); }};
    };
}
