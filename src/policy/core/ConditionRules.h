// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/core/EventDefinitions.h"

#include <QString>
#include <QStringList>

/// What makes an event of a device with advanced options complete: its name and its two conditions.
namespace Velmora {

/// What keeps a text from being a condition, in the order in which it is looked for.
enum class ConditionFault {
    None,
    Syntax,         ///< parentheses or operators do not match
    ForbiddenText,  ///< arithmetic, a negative number, a second line
    StateOperator,  ///< a state stands beside a comparison other than ==
    UnknownOperand, ///< neither a key of the device nor ON, OFF or a number
    Comparison      ///< something else than a state against ON or OFF or a parameter against a number
};

[[nodiscard]] ConditionFault findConditionFault(const QString& text, const EventDefinitions& definitions);

/// What a state can be compared with.
[[nodiscard]] QStringList conditionValues();

/// What can be put between operands, and "( )". Models whose parameters are numbers have more of it.
[[nodiscard]] QStringList conditionOperators(const QString& configName);

/// A name and two conditions as a user has left them.
struct ConditionEntry
{
    QString name;
    QString conditionIn;
    QString conditionOut;
    bool conditionsValid = false;
};

/// The first thing that keeps an entry from being saved.
enum class ConditionEntryFault { None, EmptyName, ForbiddenCharacters, EmptyCondition, InvalidCondition };

[[nodiscard]] ConditionEntryFault findConditionEntryFault(const ConditionEntry& entry);

} // namespace Velmora
