// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <QString>
#include <QStringList>

namespace Velmora::Service {

/// What the command line asks for.
struct Options
{
    QHostAddress listen = QHostAddress(QHostAddress::LocalHost);
    QString scenarioPath; ///< empty: the compiled-in scenario
    QString statePath;    ///< empty: nothing outlives the process
    quint64 seed = 1;
    double speed = 1.0; ///< simulated seconds for each second of the wall clock
    QString logLevel = QStringLiteral("info");
};

/// The command line after parsing: options to run with, a text to print and end, or an error.
struct CommandLine
{
    Options options;
    QString answer; ///< for --help and --version
    QString error;  ///< one line that names what is wrong
};

CommandLine parseCommandLine(const QStringList& arguments);

} // namespace Velmora::Service
