// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddUpsWindow.h"
#include "devices/SnmpOptionsWindow.h"
#include "link/UpsSocketController.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Velmora::Tests;
using Velmora::Utils::SerialPort;
using Velmora::Utils::Ups;

namespace {

// The dialog on a link that stands, driven by its controls' names.
struct Dialog
{
    Dialog()
        : prompts(ScriptedPrompts::install())
        , window(&ports, nullptr)
    {
        window.setSocketController(&link);
    }
    ~Dialog() { Velmora::Prompts::replace(nullptr); }
    Q_DISABLE_COPY_MOVE(Dialog)

    bool connect()
    {
        link.setServerAddress(ScriptedService::testAddress());
        if (!service.start())
            return false;
        link.connectToServer();
        return service.waitForRequest("get_shutdown_timers");
    }

    void edit(const char* configName, const char* communication, const char* port = "")
    {
        window.setUpsEdited(true);
        window.setUpsName(QStringLiteral("Serwer"));
        window.setModel(QLatin1String(configName));
        window.setId(QStringLiteral("7"));
        window.setCommunication(QLatin1String(communication));
        window.setComPort(QLatin1String(port));
        Ups ups;
        ups.id = QStringLiteral("7");
        ups.model_name = QLatin1String(configName);
        window.setAllUpsList({ups});
    }

    QComboBox* box(const char* name) { return window.findChild<QComboBox*>(QLatin1String(name)); }
    void choose(const char* model, const char* interface)
    {
        box("upsModelBox")->setCurrentText(QLatin1String(model));
        box("communicationInterfaceBox")->setCurrentText(QLatin1String(interface));
    }
    void name(const QString& text)
    {
        typeInto(window, "upsNameEdit", QString());
        QTest::keyClicks(window.findChild<QLineEdit*>(QStringLiteral("upsNameEdit")), text);
    }
    bool canSave()
    {
        return window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
    }
    /// Text of the element `tag` in the last request of this name.
    QByteArray sent(const QByteArray& request, const QByteArray& tag)
    {
        QByteArray xml;
        for (const Request& candidate : service.requests()) {
            if (candidate.name == request)
                xml = candidate.xml;
        }
        const int start = xml.indexOf('<' + tag + '>') + tag.size() + 2;
        return xml.mid(start, xml.indexOf("</" + tag + '>') - start);
    }

    QList<SerialPort> ports{{QStringLiteral("/dev/ttyS0"), false}, {QStringLiteral("/dev/ttyS1"), true}};
    ScriptedService service;
    Velmora::UpsSocketController link;
    ScriptedPrompts& prompts;
    AddUpsWindow window;
};

} // namespace

class AddUpsWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }

    void newDeviceNeedsAFreePortOrAnAddress()
    {
        Dialog dialog;
        QVERIFY(dialog.connect());
        dialog.choose("CORMEL PRO", "RS232");
        QComboBox* ports = dialog.box("communicationPortBox");
        QCOMPARE(ports->count(), 2);
        ports->setCurrentIndex(0);
        QVERIFY(!dialog.canSave() && ports->itemData(0, Qt::FontRole).value<QFont>().italic());
        ports->setCurrentIndex(1);
        QVERIFY(dialog.canSave());

        dialog.choose("TARVEX NOIR", "SNMP");
        QVERIFY(!dialog.canSave());
        dialog.prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Ok, false, {}});
        const auto enter = [&](SnmpOptionsWindow& options) {
            options.setAgentIp(QStringLiteral("192.0.2"));
            options.accept();
            QVERIFY(dialog.prompts.allAsked() && options.isVisible());
            options.setAgentIp(QStringLiteral("192.0.2.9"));
            options.setSnmpVer(QStringLiteral("v2c"), true);
            options.accept();
        };
        QVERIFY(driveModal<SnmpOptionsWindow>([&] { dialog.window.snmpOptionsButtonClickHandler(); }, enter));
        QVERIFY(dialog.canSave());
        // The options outlast a look at another interface.
        dialog.choose("TARVEX NOIR", "RS232");
        dialog.choose("TARVEX NOIR", "SNMP");
        dialog.name(QString(90, QLatin1Char('x')));
        dialog.window.accept();
        QVERIFY(dialog.service.waitForRequest("get_available_ports", 2));
        QCOMPARE(dialog.window.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.sent("set_new_ups", "model_name"), QByteArray("Tarvex_NOIR_SNMP"));
        QCOMPARE(dialog.sent("set_new_ups", "communication"), QByteArray("snmp"));
        QCOMPARE(dialog.sent("set_new_ups", "ip"), QByteArray("192.0.2.9"));
        QCOMPARE(dialog.sent("set_new_ups", "snmp_ver"), QByteArray("v2c"));
        QCOMPARE(dialog.sent("set_new_ups", "user_defined_name").size(), 80);
    }

    void changeIsSavedOnlyIfThereIsOne()
    {
        Dialog dialog;
        dialog.edit("Cormel_RS232", "rs232", "/dev/ttyS0");
        QVERIFY(!dialog.canSave());
        dialog.name(QStringLiteral("serwer"));
        QVERIFY(dialog.canSave()); // on its own port, which is in use
        dialog.name(QStringLiteral("Serwer"));
        QVERIFY(!dialog.canSave());
        // A port or model that is gone is not replaced silently.
        dialog.edit("Cormel_RS232", "rs232", "/dev/ttyS9");
        dialog.name(QStringLiteral("other"));
        QVERIFY(!dialog.canSave());
        dialog.edit("Ferron_7_USB", "usb");
        dialog.name(QStringLiteral("third"));
        QVERIFY(!dialog.canSave());
    }

    void anotherTypeAsksForItsEvents()
    {
        // No drops the change and closes, and so does a program that quits.
        for (const auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::NoButton}) {
            Dialog dialog;
            QVERIFY(dialog.connect());
            dialog.edit("Tarvex33_USB", "usb");
            dialog.choose("HEDRIX", "USB");
            dialog.prompts.expect({QStringLiteral("Uwaga"), answer, false, {}});
            dialog.window.accept();
            QVERIFY(dialog.prompts.allAsked());
            QVERIFY(dialog.service.waitForRequest("get_available_ports", 2));
            QCOMPARE(dialog.service.requestCount("change_ups"), answer == QMessageBox::Yes ? 1 : 0);
            QCOMPARE(dialog.window.result(), int(QDialog::Accepted));
            if (answer == QMessageBox::Yes)
                QCOMPARE(dialog.sent("change_ups", "reset_events_request"), QByteArray("1"));
        }
    }
};

QTEST_MAIN(AddUpsWindowTest)
#include "AddUpsWindowTest.moc"
