// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/StatusStripView.h"

#include "monitor/core/PanelIdentity.h"

#include <QCoreApplication>
#include <QLatin1String>

namespace Velmora {
namespace {

constexpr char pendingColour[] = "#FF6600";
constexpr char normalColour[] = "#59595B";
constexpr char errorColour[] = "#de1414";

QString translated(const char* source)
{
    return QCoreApplication::translate("VLStatusWidget", source);
}

QString style(const char* colour, const char* font)
{
    return QLatin1String("color: ") + QLatin1String(colour) + QLatin1String("; font: ") +
           QLatin1String(font) + QLatin1Char(';');
}

ServiceStatusView serviceLines(StatusIcon icon, const char* title, const char* colour, const QString& address)
{
    ServiceStatusView view;
    view.icon = icon;
    view.title = translated(title);
    view.titleStyle = style(colour, "bold");
    view.address = address;
    view.addressStyle = style(colour, "bold italic");
    return view;
}

ServiceStatusView connectedService(const QString& address, const QString& version)
{
    ServiceStatusView view = serviceLines(
        StatusIcon::Ok, QT_TRANSLATE_NOOP("VLStatusWidget", "Połączono z usługą:"), normalColour, address);
    if (version.compare(panelVersion(), Qt::CaseInsensitive) == 0)
        return view;
    view.icon = StatusIcon::Warning;
    view.note = translated(QT_TRANSLATE_NOOP("VLStatusWidget", "Niezgodna wersja usługi"));
    if (!version.isEmpty())
        view.note += QStringLiteral(" (v. %1)").arg(version);
    view.noteStyle = QStringLiteral("color: #FF6600; font: bold");
    return view;
}

/// The text for the device's type, in the colour that says whether all is well.
DeviceStatusView deviceLine(StatusIcon icon, VLDeviceType deviceType, const char* upsText,
                            const char* gensetText, const char* colour)
{
    return {icon, translated(deviceType == VLDeviceType::Genset ? gensetText : upsText),
            style(colour, "bold")};
}

} // namespace

ServiceStatusView serviceStatusView(VLStatusConnectionState state, const QString& address,
                                    const QString& version)
{
    switch (state) {
    case VLStatusConnectionState::Connecting:
        return serviceLines(StatusIcon::Spinner,
                            QT_TRANSLATE_NOOP("VLStatusWidget", "Trwa łączenie z usługą:"), pendingColour,
                            address);
    case VLStatusConnectionState::Connected:
        return connectedService(address, version);
    case VLStatusConnectionState::Disconnected:
        return serviceLines(StatusIcon::Error,
                            QT_TRANSLATE_NOOP("VLStatusWidget", "Błąd połączenia z usługą:"), errorColour,
                            address);
    case VLStatusConnectionState::Unknown:
    case VLStatusConnectionState::Initial:
        break;
    }
    return {};
}

DeviceStatusView deviceStatusView(VLStatusConnectionState state, VLDeviceType deviceType)
{
    switch (state) {
    case VLStatusConnectionState::Connected:
        return deviceLine(StatusIcon::Ok, deviceType, QT_TRANSLATE_NOOP("VLStatusWidget", "Połączono z UPS"),
                          QT_TRANSLATE_NOOP("VLStatusWidget", "Połączono z agregatem"), normalColour);
    case VLStatusConnectionState::Disconnected:
        return deviceLine(StatusIcon::Error, deviceType,
                          QT_TRANSLATE_NOOP("VLStatusWidget", "Brak komunikacji z UPS"),
                          QT_TRANSLATE_NOOP("VLStatusWidget", "Brak komunikacji z agregatem"), errorColour);
    case VLStatusConnectionState::Connecting:
    case VLStatusConnectionState::Unknown:
        return deviceLine(
            state == VLStatusConnectionState::Connecting ? StatusIcon::Spinner : StatusIcon::Unknown,
            deviceType, QT_TRANSLATE_NOOP("VLStatusWidget", "Komunikacja z UPS nieznana"),
            QT_TRANSLATE_NOOP("VLStatusWidget", "Komunikacja z agregatem\nnieznana"), normalColour);
    case VLStatusConnectionState::Initial:
        break;
    }
    return {};
}

VLStatusConnectionState shownDeviceState(VLStatusConnectionState serviceState,
                                         VLStatusConnectionState deviceState)
{
    switch (serviceState) {
    case VLStatusConnectionState::Connected:
        return deviceState;
    case VLStatusConnectionState::Connecting:
    case VLStatusConnectionState::Initial:
        return serviceState;
    case VLStatusConnectionState::Disconnected:
    case VLStatusConnectionState::Unknown:
        break;
    }
    return VLStatusConnectionState::Unknown;
}

int shownPowerOffSeconds(VLStatusConnectionState serviceState, int seconds)
{
    return serviceState == VLStatusConnectionState::Connected && seconds > 0 ? seconds : 0;
}

QString powerOffText(int seconds)
{
    if (seconds <= 0)
        return {};
    return QStringLiteral("%1 %2 s").arg(translated(QT_TRANSLATE_NOOP("VLStatusWidget", "Wyłączenie za")),
                                         QString::number(seconds));
}

QString powerOffStyle()
{
    return style(errorColour, "bold");
}

} // namespace Velmora
