// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Velmora {

/// Something that the user is told before a setting goes to the device.
struct ConfigurationPrompt
{
    enum class Kind {
        Information, ///< shown without waiting
        Question,    ///< saving goes on after Yes only
        Warning,     ///< the same, for what cannot be taken back
        Notice,      ///< saving goes on once it was read
        Refusal      ///< saving stops
    };

    Kind kind = Kind::Refusal;
    QString text; ///< translated
};

/// What stands between a change and the device, in the order in which it is put to the user. Nothing comes
/// after a refusal. `key` is empty if nothing but a radio group was changed, or nothing at all.
[[nodiscard]] std::vector<ConfigurationPrompt> configurationPrompts(const QString& configName,
                                                                    const QString& key, const QString& value);

} // namespace Velmora
