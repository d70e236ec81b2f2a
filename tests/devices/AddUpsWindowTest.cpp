// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddUpsWindow.h"
#include "link/UpsSocketController.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QComboBox>

using namespace Velmora::Tests;

namespace {

/// Puts a registered device called "Serwer" before the user.
void edit(AddUpsWindow& window, const char* configName, const char* communication, const char* port = "")
{
    window.setUpsEdited(true);
    window.setUpsName(QStringLiteral("Serwer"));
    window.setModel(QLatin1String(configName));
    window.setId(QStringLiteral("7"));
    window.setCommunication(QLatin1String(communication));
    window.setComPort(QLatin1String(port));
}

bool canSaveAs(const AddUpsWindow& window, const char* name)
{
    auto* field = window.findChild<QLineEdit*>(QStringLiteral("upsNameEdit"));
    field->selectAll();
    QTest::keyClicks(field, QLatin1String(name));
    return window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
}

} // namespace

class AddUpsWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }

    void changeIsSavedOnlyIfThereIsOne()
    {
        QList<Velmora::Utils::SerialPort> ports{{QStringLiteral("/dev/ttyS0"), false}};
        AddUpsWindow window(&ports, nullptr);
        edit(window, "Cormel_RS232", "rs232", "/dev/ttyS0");
        QVERIFY(canSaveAs(window, "serwer")); // on its own port, which is in use
        QVERIFY(!canSaveAs(window, "Serwer"));
        // A port or model that is gone is not replaced silently.
        edit(window, "Cormel_RS232", "rs232", "/dev/ttyS9");
        QVERIFY(!canSaveAs(window, "other"));
        edit(window, "Ferron_7_USB", "usb");
        QVERIFY(!canSaveAs(window, "third"));
    }

    void anotherTypeAsksForItsEvents()
    {
        ScriptedService service;
        Velmora::UpsSocketController link;
        link.setServerAddress(ScriptedService::testAddress());
        QVERIFY(service.start());
        link.connectToServer();
        QVERIFY(service.waitForRequest("get_shutdown_timers"));
        ScriptedPrompts& prompts = ScriptedPrompts::install();
        // No drops the change and closes, and so does a program that quits.
        for (const auto answer : {QMessageBox::No, QMessageBox::NoButton, QMessageBox::Yes}) {
            service.clearRequests();
            QList<Velmora::Utils::SerialPort> ports;
            AddUpsWindow window(&ports, nullptr);
            window.setSocketController(&link);
            edit(window, "Tarvex33_USB", "usb");
            window.findChild<QComboBox*>(QStringLiteral("upsModelBox"))
                ->setCurrentText(QStringLiteral("HEDRIX"));
            prompts.expect({QStringLiteral("Uwaga"), answer, false, {}});
            window.accept();
            QVERIFY(prompts.allAsked());
            QVERIFY(service.waitForRequest("get_available_ports"));
            QCOMPARE(service.requestCount("change_ups"), answer == QMessageBox::Yes ? 1 : 0);
            QCOMPARE(window.result(), int(QDialog::Accepted));
        }
        QVERIFY(service.requests().constFirst().xml.contains("<reset_events_request>1<"));
        Velmora::Prompts::replace(nullptr);
    }
};

QTEST_MAIN(AddUpsWindowTest)
#include "AddUpsWindowTest.moc"
