// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>
#include <QString>
#include <QStringList>

namespace Velmora::Service {

Q_DECLARE_LOGGING_CATEGORY(serviceLog)

/// The names that --log-level knows, from the quietest to the most talkative.
QStringList logLevels();

/// Sends the program's messages of this level and worse to standard error, one line each.
void startLogging(const QString& level);

} // namespace Velmora::Service
