// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// What a service sends about devices with the ids 1 to a count, the first of them a three-phase UPS.
namespace Velmora::Bench {

[[nodiscard]] QByteArray devicesMessage(int count);
/// Every state word differs from that of the other `turn`, which is 0 or 1.
[[nodiscard]] QByteArray statusesMessage(int count, int turn);
/// A full report of a three-phase UPS; all that the window shows of it differs from the other `turn`.
[[nodiscard]] QByteArray stateMessage(int turn);
[[nodiscard]] QByteArray configurationMessage();

} // namespace Velmora::Bench
