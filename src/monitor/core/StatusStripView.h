// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace Velmora {

/// State of the link to the service and of the link to the device.
enum class VLStatusConnectionState {
    Disconnected = 0, ///< error, no link
    Connected = 1,
    Connecting = 2,
    Unknown = 3, ///< cannot be told, as the service link is down
    Initial = 4  ///< nothing to show yet
};

enum class VLDeviceType { Ups = 0, Genset = 1 };

enum class StatusIcon { None, Ok, Error, Warning, Unknown, Spinner };

/// The strip's lines on the link to the service. Styles are style sheets of the labels; texts that come from
/// outside are plain text.
struct ServiceStatusView
{
    StatusIcon icon = StatusIcon::None;
    QString title;
    QString titleStyle;
    QString address;
    QString addressStyle;
    QString note; ///< empty unless the service's version differs from the panel's
    QString noteStyle;
};

/// The strip's line on the link to the device.
struct DeviceStatusView
{
    StatusIcon icon = StatusIcon::None;
    QString text;
    std::optional<QString> style; ///< none: the label keeps its style
};

/// `version` is the service's; empty while it has not told it, which counts as a difference.
[[nodiscard]] ServiceStatusView serviceStatusView(VLStatusConnectionState state, const QString& address,
                                                  const QString& version);

[[nodiscard]] DeviceStatusView deviceStatusView(VLStatusConnectionState state, VLDeviceType deviceType);

/// The device state to show: without a service nothing is known of the device.
[[nodiscard]] VLStatusConnectionState shownDeviceState(VLStatusConnectionState serviceState,
                                                       VLStatusConnectionState deviceState);

/// Seconds until power-off to show; 0 hides the countdown.
[[nodiscard]] int shownPowerOffSeconds(VLStatusConnectionState serviceState, int seconds);

/// Text of the countdown; empty if it is hidden.
[[nodiscard]] QString powerOffText(int seconds);

/// Style sheet of the countdown.
[[nodiscard]] QString powerOffStyle();

} // namespace Velmora
