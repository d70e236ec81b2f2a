// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/core/LoggingSettings.h"

namespace Velmora {

namespace {

constexpr int parametersBit = 1;
constexpr int messagesBit = 2;
constexpr int compensationBit = 4;

} // namespace

LoggingSettings loggingSettings(const Utils::Ups& ups)
{
    const int mask = ups.log_params.toInt();
    LoggingSettings settings;
    settings.fileSize = ups.log_file_size.toInt();
    settings.interval = ups.log_time_interval.toInt();
    settings.parameters = (mask & parametersBit) != 0;
    settings.messages = (mask & messagesBit) != 0;
    settings.compensation = ups.power_compensation && (mask & compensationBit) != 0;
    return settings;
}

void storeLoggingSettings(const LoggingSettings& settings, Utils::Ups& ups)
{
    int mask = 0;
    if (settings.parameters)
        mask |= parametersBit;
    if (settings.messages)
        mask |= messagesBit;
    if (settings.compensation && ups.power_compensation)
        mask |= compensationBit;
    ups.log_file_size = QString::number(settings.fileSize);
    ups.log_time_interval = QString::number(settings.interval);
    ups.log_params = QString::number(mask);
}

} // namespace Velmora
