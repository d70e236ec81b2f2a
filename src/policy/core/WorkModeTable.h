// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Velmora {

/// A work mode that an event of a simple device can stand for.
struct WorkMode
{
    QString key; ///< state key of the service, Event::state
    QString label;
    QString expressionIn; ///< postfix text under which the event starts
    QString expressionOut;
};

/// State keys that a device of this model can be offered, in the order in which it is.
[[nodiscard]] QStringList workModeKeys(const QString& configName);

/// A key that the model's table lacks is its own label and has no expressions.
[[nodiscard]] WorkMode workMode(const QString& configName, const QString& key);

} // namespace Velmora
