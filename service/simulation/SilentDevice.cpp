// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SilentDevice.h"

namespace Velmora::Service {

SilentDevice::SilentDevice(const DeviceSetup& setup)
    : SimulatedDevice(setup)
{}

SilentDevice::~SilentDevice() = default;

void SilentDevice::step(const Moment& /*moment*/) {}

DeviceState SilentDevice::state() const
{
    DeviceState state;
    state.found = profile().answers;
    state.proper = profile().answers && profile().proper && family().kind != DeviceKind::Unknown;
    return state;
}

DeviceStatus SilentDevice::status() const
{
    DeviceStatus status = SimulatedDevice::status();
    status.connected = false;
    return status;
}

KeyValues SilentDevice::configuration() const
{
    return {};
}

QString SilentDevice::workMode() const
{
    return profile().answers ? QStringLiteral("unknown") : QStringLiteral("no_communication");
}

} // namespace Velmora::Service
