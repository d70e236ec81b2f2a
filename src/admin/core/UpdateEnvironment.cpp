// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/UpdateEnvironment.h"

#include "monitor/core/PanelIdentity.h"

#include <QCoreApplication>
#include <QProcess>

#include <unistd.h>

namespace Velmora {

namespace {

constexpr int longestRun = 30000;

void runAndWaitFor(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(longestRun);
}

} // namespace

UpdateEnvironment::UpdateEnvironment()
    : descriptor(QLatin1String("https://") + makerHost() + QLatin1String("/VL/update.xml"))
    , installerFolder(QLatin1String("http://") + makerHost() + QLatin1String("/VL/"))
    , userId(getuid)
    , runAndWait(runAndWaitFor)
    , startDetached([](const QString& program, const QStringList& arguments) {
        QProcess::startDetached(program, arguments);
    })
    // Not called directly: quitting walks the loops of the thread that the application lives on.
    , endPanel([] { QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection); })
{}

} // namespace Velmora
