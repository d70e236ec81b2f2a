// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/Options.h"

#include "service/Logging.h"

#include <QCommandLineParser>

namespace Velmora::Service {

namespace {

constexpr double maximumSpeed = 1000.0;

const QCommandLineOption& listenOption()
{
    static const QCommandLineOption option(QStringLiteral("listen"),
                                           QStringLiteral("IP address to listen on (default 127.0.0.1)."),
                                           QStringLiteral("ADDRESS"));
    return option;
}

const QCommandLineOption& scenarioOption()
{
    static const QCommandLineOption option(QStringLiteral("scenario"),
                                           QStringLiteral("JSON file with the devices to simulate."),
                                           QStringLiteral("FILE"));
    return option;
}

const QCommandLineOption& stateOption()
{
    static const QCommandLineOption option(QStringLiteral("state"),
                                           QStringLiteral("JSON file that keeps changes over restarts."),
                                           QStringLiteral("FILE"));
    return option;
}

const QCommandLineOption& seedOption()
{
    static const QCommandLineOption option(
        QStringLiteral("seed"), QStringLiteral("Number that fixes the simulated course (default 1)."),
        QStringLiteral("N"));
    return option;
}

const QCommandLineOption& speedOption()
{
    static const QCommandLineOption option(
        QStringLiteral("speed"),
        QStringLiteral("How much faster than the clock simulated time runs, up to 1000 (default 1)."),
        QStringLiteral("FACTOR"));
    return option;
}

const QCommandLineOption& logLevelOption()
{
    static const QCommandLineOption option(QStringLiteral("log-level"),
                                           QStringLiteral("error, warning, info (default) or debug."),
                                           QStringLiteral("LEVEL"));
    return option;
}

QString badValue(const QCommandLineOption& option, const QString& value, const QString& expected)
{
    return QStringLiteral("bad value \"%1\" for --%2: expected %3")
        .arg(value, option.names().first(), expected);
}

QString readNumbers(const QCommandLineParser& parser, Options& options)
{
    bool valid = true;
    if (parser.isSet(seedOption()))
        options.seed = parser.value(seedOption()).toULongLong(&valid);
    if (!valid)
        return badValue(seedOption(), parser.value(seedOption()), QStringLiteral("a whole number from 0 up"));
    if (parser.isSet(speedOption()))
        options.speed = parser.value(speedOption()).toDouble(&valid);
    // Written so that "nan" fails too.
    if (!valid || !(options.speed > 0.0 && options.speed <= maximumSpeed))
        return badValue(speedOption(), parser.value(speedOption()),
                        QStringLiteral("a number above 0 and at most 1000"));
    return {};
}

QString readValues(const QCommandLineParser& parser, Options& options)
{
    if (parser.isSet(listenOption()) && !options.listen.setAddress(parser.value(listenOption())))
        return badValue(listenOption(), parser.value(listenOption()), QStringLiteral("an IP address"));
    if (parser.isSet(logLevelOption()))
        options.logLevel = parser.value(logLevelOption());
    if (!logLevels().contains(options.logLevel))
        return badValue(logLevelOption(), options.logLevel, logLevels().join(QLatin1String(", ")));
    for (const QCommandLineOption& option : {scenarioOption(), stateOption()}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return badValue(option, QString(), QStringLiteral("a file name"));
    }
    options.scenarioPath = parser.value(scenarioOption());
    options.statePath = parser.value(stateOption());
    return readNumbers(parser, options);
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reference service of the Velmora control panel: simulates the devices of a scenario."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions(
        {listenOption(), scenarioOption(), stateOption(), seedOption(), speedOption(), logLevelOption()});

    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
        return result;
    }
    if (parser.isSet(help)) {
        result.answer = parser.helpText();
        return result;
    }
    if (parser.isSet(version)) {
        result.answer = QStringLiteral("velmora-service " VELMORA_VERSION "\n");
        return result;
    }
    if (!parser.positionalArguments().isEmpty()) {
        result.error = QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().first());
        return result;
    }
    result.error = readValues(parser, result.options);
    return result;
}

} // namespace Velmora::Service
