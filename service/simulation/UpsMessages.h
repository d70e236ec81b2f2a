// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/UpsReport.h"

#include <QStringList>

namespace Velmora::Service {

enum class TestResult {
    None,
    Passed,
    Failed,
};

/// What a UPS has to say besides its readings.
struct UpsCondition
{
    bool lowBattery = false;
    bool overload = false;
    bool wornBattery = false;
    bool parallelUnit = false;
    bool master = false;
    bool firstSocketOff = false;
    bool secondSocketOff = false;
    TestResult testResult = TestResult::None;
};

/// Message codes of a UPS in this state, the worst first.
[[nodiscard]] QStringList upsMessages(const UpsReadings& readings, const UpsCondition& condition);

} // namespace Velmora::Service
