// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/SimulatedDevice.h"

namespace Velmora::Service {

/// A device of which nothing can be read: it does not answer, another model answers in its place, or its
/// model is not known.
class SilentDevice final : public SimulatedDevice
{
public:
    explicit SilentDevice(const DeviceSetup& setup);
    ~SilentDevice() override;

    void step(const Moment& moment) override;
    [[nodiscard]] DeviceState state() const override;
    [[nodiscard]] DeviceStatus status() const override;
    [[nodiscard]] KeyValues configuration() const override;

protected:
    [[nodiscard]] QString workMode() const override;
};

} // namespace Velmora::Service
