// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/scenario/Scenario.h"
#include "service/simulation/SimulatedBackend.h"

namespace Velmora::Tests {

/// A scenario from JSON text, given without the quotes' escapes: ' stands for ". Fails the process if it is
/// bad.
[[nodiscard]] Service::Scenario scenarioFrom(const char* json);

/// The compiled-in scenario.
[[nodiscard]] Service::Scenario defaultScenario();

/// Writes the compiled-in scenario without its warm-up, which takes most of a start; gives the file's path.
[[nodiscard]] QString quickScenarioFile(const QString& folder);

/// A simulation whose time the test sets.
class TimedBackend final
{
public:
    explicit TimedBackend(const Service::Scenario& scenario, quint64 seed = 1, double speed = 1.0);

    /// Seconds on the wall clock.
    void setTime(double seconds) { m_milliseconds = static_cast<qint64>(seconds * 1000.0); }
    Service::SimulatedBackend* operator->() { return &m_backend; }
    [[nodiscard]] QString value(int id, const char* key);
    [[nodiscard]] int number(int id, const char* key) { return value(id, key).toInt(); }
    [[nodiscard]] QStringList messages(int id) { return value(id, "messages").split(QLatin1Char('\n')); }

private:
    qint64 m_milliseconds = 0;
    Service::SimulatedBackend m_backend;
};

} // namespace Velmora::Tests
