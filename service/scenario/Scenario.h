// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/DeviceProfile.h"
#include "service/simulation/MainsFeed.h"
#include "service/store/StoredData.h"

namespace Velmora::Service {

/// A computer that answers the discovery broadcast.
struct SimulatedClient
{
    QString address;
    QString password;
};

/// What there is to simulate.
struct Scenario
{
    int warmUp = 0; ///< simulated seconds before the start, from which logs and histories come
    bool debugging = false;
    QVector<MainsFeed> feeds;
    QStringList serialPorts;
    QVector<SimulatedClient> clients;
    QMap<int, DeviceProfile> profiles; ///< by device id
    StoredData initial;                ///< what a service without a state file starts from

    /// The feed of that name; the first one if the name is empty or unknown.
    [[nodiscard]] int feedIndex(const QString& name) const;
};

/// Reads a scenario file; an empty path gives the compiled-in one. Nothing and a reason that names the file
/// and what is wrong in it if it cannot be read.
[[nodiscard]] std::optional<Scenario> readScenario(const QString& path, QString& reason);

} // namespace Velmora::Service
