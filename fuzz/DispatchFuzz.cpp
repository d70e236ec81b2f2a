// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Every reader of a message and what is made of the record behind it. 0xFF, which no UTF-8 holds, ends a
// document.

#include "devices/core/DeviceTreeLayout.h"
#include "monitor/core/DeviceStateView.h"
#include "monitor/core/EventCodes.h"
#include "monitor/core/ShutdownTimersData.h"
#include "support/Feed.h"

#include <cstdint>

namespace {

using Velmora::UpsSocketController;

// What the panel does with a record outside its widgets.
void connectRules(UpsSocketController& link, Velmora::ShutdownTimersData& timers)
{
    QObject::connect(&link, &UpsSocketController::upsDeviceState, &link, [](const auto& report) {
        for (const char* model : {"Tarvex33_SNMP", "TarvexRT_USB", "Virtual_Device"})
            (void)Velmora::deviceStateView(report, QLatin1String(model), QString());
        (void)Velmora::formatEventHistory(report.value(QStringLiteral("events")));
    });
    QObject::connect(&link, &UpsSocketController::upsModelMessageReceived, &link, [](const auto& devices) {
        const auto rows = Velmora::deviceTreeLayout(devices);
        (void)Velmora::deviceSelectionSteps(rows, devices.isEmpty() ? QString() : devices.constLast().id);
    });
    QObject::connect(&link, &UpsSocketController::showCountdownTimer, &link,
                     [&timers](const auto& announced) { (void)Velmora::takeCountdown(timers, announced); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    UpsSocketController link;
    Velmora::ShutdownTimersData timers;
    connectRules(link, timers);
    const auto documents =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\xFF');
    for (const QByteArray& document : documents)
        (void)Velmora::Tests::feed(link, Velmora::Tests::frame(document));
    return 0;
}
