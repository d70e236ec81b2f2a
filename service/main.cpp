// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/ServiceEndpoint.h"
#include "service/Logging.h"
#include "service/Options.h"
#include "service/ReferenceService.h"
#include "service/TerminationSignals.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Velmora::Service;

namespace {

constexpr int failureStatus = 2;

void print(std::FILE* stream, const QString& text)
{
    std::fputs(text.toUtf8().constData(), stream);
    std::fflush(stream);
}

int fail(const QString& reason)
{
    print(stderr, QLatin1String("velmora-service: ") % reason % QLatin1Char('\n'));
    return failureStatus;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velmora-service"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));

    const CommandLine commandLine = parseCommandLine(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty())
        return fail(commandLine.error);
    if (!commandLine.answer.isEmpty()) {
        print(stdout, commandLine.answer);
        return 0;
    }
    startLogging(commandLine.options.logLevel);
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &application,
                     &QCoreApplication::quit);

    ReferenceService service;
    QString reason;
    if (!service.start(commandLine.options, reason))
        return fail(reason);
    // Scripts wait for this line.
    print(stdout, QStringLiteral("velmora-service " VELMORA_VERSION " listens on %1:%2\n")
                      .arg(commandLine.options.listen.toString())
                      .arg(Velmora::servicePort));
    return QCoreApplication::exec();
}
