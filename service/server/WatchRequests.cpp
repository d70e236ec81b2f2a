// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/device/DeviceBackend.h"
#include "service/server/RequestDispatcher.h"

namespace Velmora::Service {

namespace {

void sendDeviceList(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(deviceListReply(scope.store().data().devices));
}

void sendStatusList(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(statusListReply(scope.backend().devices()));
}

// A panel that has just come back may ask before it has chosen: what another device reports would stand under
// the name of the one it shows, so until then there is no device to be found.
void sendDeviceState(const RequestScope& scope, const Element& /*request*/)
{
    const int device = scope.device();
    DeviceState state = scope.backend().state(device);
    const QString events = scope.backend().eventHistory(device);
    if (state.found && state.proper && !events.isEmpty())
        state.values.insert(QStringLiteral("events"), events);
    scope.reply(stateReply(state));
}

void sendConfiguration(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(
        valuesReply(QLatin1String("ups_configuration"), scope.backend().configuration(scope.device())));
}

void sendPorts(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(portsReply(scope.ports()));
}

void sendDebuggingStatus(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(
        emptyReply(QLatin1String(scope.scenario().debugging ? "debugging_enabled" : "debugging_disabled")));
}

void sendVersion(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(textReply(QLatin1String("service_version"), QStringLiteral(VELMORA_VERSION)));
}

void sendShutdownTimers(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(countdownReply(scope.backend().shutdownTimers()));
}

void selectDevice(const RequestScope& scope, const Element& request)
{
    // With an id that no device has, nothing is to be found.
    scope.session().selectDevice(request.childId(QLatin1String("id")));
}

} // namespace

QVector<RequestEntry> watchRequests()
{
    return {
        {"get_ups_model_list", Access::Watch, sendDeviceList},
        {"get_ups_current_status_list", Access::Watch, sendStatusList},
        {"get_ups_device_state", Access::Watch, sendDeviceState},
        {"get_ups_configuration", Access::Watch, sendConfiguration},
        {"get_available_ports", Access::Watch, sendPorts},
        {"get_debugging_status", Access::Watch, sendDebuggingStatus},
        {"get_service_version", Access::Watch, sendVersion},
        {"get_shutdown_timers", Access::Watch, sendShutdownTimers},
        {"change_device_on_interface", Access::Watch, selectDevice},
    };
}

} // namespace Velmora::Service
