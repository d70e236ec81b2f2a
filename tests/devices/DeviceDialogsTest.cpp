// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddUpsWindow.h"
#include "devices/SnmpOptionsWindow.h"
#include "devices/UPSConfigurationWindow.h"
#include "link/UpsSocketController.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QComboBox>
#include <QHBoxLayout>

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

/// Settings that are written like a query.
QMap<QString, QString> settings(const QByteArray& query)
{
    QMap<QString, QString> map;
    for (const QByteArray& setting : query.split('&'))
        map.insert(QLatin1String(setting.split('=').at(0)), QLatin1String(setting.split('=').at(1)));
    return map;
}

/// The widget at `place` in the row of `key`.
QWidget* at(const QDialog& dialog, const char* key, int place = 0)
{
    return dialog.findChild<QHBoxLayout*>(QLatin1String(key))->itemAt(place)->widget();
}

} // namespace

class DeviceDialogsTest final : public QObject
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

        SnmpOptionsWindow options(nullptr);
        options.setSnmpVer(QStringLiteral("V2C"), true);
        QCOMPARE(options.getSnmpVer(), QStringLiteral("v2c")); // as services may spell it
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

    void oneRowChangesAtATime()
    {
        Velmora::Utils::Ups ups;
        ups.model_name = QStringLiteral("Tarvex33_USB");
        UPSConfigurationWindow dialog(ups, nullptr);
        dialog.setConfiguration(
            settings("output_voltage=230.5678&epo=2&dhcp_enable=1&snmp_agent_ip=192.0.2.1&"
                     "sound_alarm=true&frequency_mode=0&output_voltage_option=9;1;2&"
                     "controller_mode_option=MAN;OFF;MAN"));
        dialog.setConfiguration(settings("output_voltage=1"));
        // Not even what a control cannot hold as it came.
        QVERIFY(dialog.getConfiguration().isEmpty());
        QWidget* voltage = at(dialog, "output_voltage", 1);
        const QWidget* address = at(dialog, "snmp_agent_ip", 1);
        auto* off = qobject_cast<QAbstractButton*>(at(dialog, "controller_mode_option", 1));
        auto* epo = qobject_cast<QAbstractButton*>(at(dialog, "epo"));
        QVERIFY(!address->isEnabled() && off->isEnabled());
        voltage->setProperty("text", QStringLiteral("231"));
        QVERIFY(voltage->isEnabled() && !off->isEnabled() && !epo->isEnabled());
        QCOMPARE(dialog.getConfiguration(), settings("output_voltage=231"));
        voltage->setProperty("text", QStringLiteral("230.5678"));
        QVERIFY(!address->isEnabled() && off->isEnabled());
        off->click();
        QVERIFY(!voltage->isEnabled() && off->isEnabled() && dialog.getChangedProperty().first.isEmpty());
        QCOMPARE(dialog.getConfiguration(), settings("controller_mode_option=OFF"));
        qobject_cast<QAbstractButton*>(at(dialog, "controller_mode_option", 2))->click();
        epo->click();
        epo->click();
        QCOMPARE(dialog.getConfiguration(), settings("epo=1"));

        // The user says No, then Yes when the right to save is gone, then Yes.
        ScriptedPrompts& prompts = ScriptedPrompts::install();
        const std::function<void()> end = [&] { dialog.setEnabledButtons(false); };
        prompts.expect({QStringLiteral("Uwaga"), QMessageBox::No, false, {}, {}});
        prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Yes, false, end, {}});
        prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Yes, false, {}, {}});
        for (const int result : {QDialog::Rejected, QDialog::Rejected, QDialog::Accepted}) {
            dialog.accept();
            QCOMPARE(dialog.result(), result);
            dialog.setEnabledButtons(true);
        }
        Velmora::Prompts::replace(nullptr);
    }
};

QTEST_MAIN(DeviceDialogsTest)
#include "DeviceDialogsTest.moc"
