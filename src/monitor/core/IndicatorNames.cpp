// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/IndicatorNames.h"

#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

struct Indicator
{
    const char* status;
    const char* unit;
    const char* master;
};

constexpr Indicator indicators[] = {
    {"on_power_line", "green", "green_m"}, {"genset_on", "green", "orange_m"},
    {"unknown", "grey", "grey_m"},         {"on_battery", "yellow", "yellow_m"},
    {"genset_off", "yellow", "orange_m"},  {"no_communication", "red", "red_m"},
};

QString pathOf(const char* name)
{
    return QLatin1String(":/indicators/images/indicators/") + QLatin1String(name) + QLatin1String(".png");
}

} // namespace

QString indicatorPath(const std::string& status, bool master)
{
    const auto* const indicator =
        std::find_if(std::begin(indicators), std::end(indicators),
                     [&status](const Indicator& candidate) { return status == candidate.status; });
    if (indicator == std::end(indicators))
        return pathOf(master ? "orange_m" : "orange");
    return pathOf(master ? indicator->master : indicator->unit);
}

QString lostServiceIndicatorPath()
{
    return pathOf("red");
}

} // namespace Velmora
