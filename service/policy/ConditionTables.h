// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>

namespace Velmora::Service {

/// Keys of the states that are on for a device of this model with this state word and these message codes, in
/// the vocabulary of its family. Usually one: a family that has no key for a work mode reports the nearest.
[[nodiscard]] QStringList activeStates(const QString& modelName, const QString& stateWord,
                                       const QSet<QString>& codes);

/// Message codes of which any turns the message or alarm of this key on; none for an unknown key.
[[nodiscard]] QStringList codesOf(const QString& key);

} // namespace Velmora::Service
