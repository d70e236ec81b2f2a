// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/ServiceRun.h"

#include "admin/LogiInWindow.h"
#include "support/ModalDriver.h"

#include <QAction>
#include <QProcess>
#include <QSignalSpy>

namespace Velmora::Tests {

bool startService(QProcess& service, const QStringList& options)
{
    service.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Of two addresses the last one counts.
    service.start(QStringLiteral(VELMORA_SERVICE_PROGRAM),
                  QStringList{QStringLiteral("--listen"), ScriptedService::testAddress(),
                              QStringLiteral("--log-level"), QStringLiteral("error")} +
                      options);
    return service.waitForStarted() && service.waitForReadyRead(patience) &&
           service.readLine().contains(" listens on ");
}

bool stopService(QProcess& service)
{
    service.terminate();
    return service.waitForFinished() && service.exitStatus() == QProcess::NormalExit &&
           service.exitCode() == 0;
}

bool openOnService(WindowFixture& panel, const QString& row)
{
    panel.window = std::make_unique<VelmoraWindow>();
    panel.window->show();
    return QTest::qWaitFor([&] { return panel.row(row); }, patience);
}

bool selectDevice(const WindowFixture& panel, const QString& row)
{
    UpsTreeElement* element = panel.row(row);
    if (!element)
        return false;
    panel.tree()->setCurrentItem(element);
    // Two reports, since the first one may still be of the device that was selected before.
    for (int i = 0; i < 2; ++i) {
        QSignalSpy reports(panel.link(), &UpsSocketController::upsDeviceState);
        if (!reports.wait(patience))
            return false;
    }
    return panel.find<QPushButton>("exInfoButton")->isEnabled();
}

QStringList logIn(const WindowFixture& panel, const QString& password)
{
    QStringList said{QStringLiteral("nothing happened")};
    const auto enter = [&](LogiInWindow& dialog) {
        typeInto(dialog, "passwordEdit", password);
        pressOk(dialog);
        (void)QTest::qWaitFor([&] {
            said = takeMessages();
            return dialog.isHidden() || !said.isEmpty();
        });
    };
    const auto open = [&panel] { panel.find<QAction>("actionActAsAdministrator")->trigger(); };
    return driveModal<LogiInWindow>(open, enter) ? said : QStringList(QStringLiteral("no dialog"));
}

} // namespace Velmora::Tests
