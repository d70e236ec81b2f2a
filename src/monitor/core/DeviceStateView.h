// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace Velmora {

/// What a report does to one bar of the state panel.
struct BarView
{
    enum Action {
        Keep,        ///< the bar stays as it is
        ShowDefault, ///< not available
        ShowValue
    };

    Action action = Keep;
    int value = 0; ///< percent as reported, possibly outside 0 to 100
};

/// Text of a value field; none: the field's default, "not available" with the help button.
using FieldView = std::optional<QString>;

/// What one state report makes the state panel show.
struct DeviceStateView
{
    /// Whether the extended information can be opened; holds for a failed report too.
    bool extendedInformationAvailable = false;
    /// The device counts as not answering: nothing below is meant.
    bool failed = false;

    std::array<BarView, 3> load; ///< by phase; a single-phase report leaves the other two bars alone
    BarView batteryState;
    QString workMode; ///< shown without help button even where it is the "not available" text
    FieldView nominalActivePower;
    FieldView nominalSpuriousPower;
    FieldView autonomyTime;
    FieldView firmware;
    FieldView temperature;
    std::optional<QString> nameAndLocation; ///< none: the text stays as it is
    bool nameAndLocationVisible = false;
    std::optional<QStringList>
        messages;                  ///< codes in the order received; none: the device reports no messages
    QString events;                ///< event history as received
    QMap<QString, QString> report; ///< the report itself, its load freed of blanks
};

/// Reads a state report of the device with this config name. `notAvailableText` stands in for a missing work
/// mode.
[[nodiscard]] DeviceStateView deviceStateView(const QMap<QString, QString>& report, const QString& configName,
                                              const QString& notAvailableText);

} // namespace Velmora
