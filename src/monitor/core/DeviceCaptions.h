// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// Captions of the state panel that depend on the selected device's kind.
struct DeviceCaptions
{
    QString box;
    QString model;
    QString firmware;
    QString nominalActivePower;
    QString nominalSpuriousPower;
    QString workMode;
    QString load; ///< of the first bar: names the phase where three are shown
    QString batteryState;
    QString autonomyTime;
    QString temperature;
    QString configurationButton;
};

/// Captions for a device of this config name, in the language that is installed.
[[nodiscard]] DeviceCaptions deviceCaptions(const QString& configName);

/// Why a value may be missing: true blames the model, false the communication interface in use.
struct MissingValueReasons
{
    bool temperature = true;
    bool firmware = true;
    bool nominalActivePower = true;
    bool nominalSpuriousPower = true;
};

[[nodiscard]] MissingValueReasons missingValueReasons(const QString& configName);

} // namespace Velmora
