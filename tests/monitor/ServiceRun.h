// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/WindowFixture.h"

class QProcess;

/// What end-to-end tests do with the reference service and a window on it, both as they ship.
namespace Velmora::Tests {

/// Milliseconds in which whatever is awaited must come.
constexpr int patience = 10000;

/// Starts the service, on the test's address unless the options name another, and waits until it listens.
[[nodiscard]] bool startService(QProcess& service, const QStringList& options = {});
/// False if the service did not end by itself.
[[nodiscard]] bool stopService(QProcess& service);
/// Opens the window and waits for the device with this row.
[[nodiscard]] bool openOnService(WindowFixture& panel, const QString& row);
/// Selects the device and waits until the window shows it. False if it is not there or does not report.
[[nodiscard]] bool selectDevice(const WindowFixture& panel, const QString& row);
/// Logs in and tells what the panel said to it.
[[nodiscard]] QStringList logIn(const WindowFixture& panel,
                                const QString& password = QStringLiteral("Opiekunsystem"));

} // namespace Velmora::Tests
