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

Ups device(const QString& configName, const QString& communication)
{
    Ups ups;
    ups.id = QStringLiteral("7");
    ups.model_name = configName;
    ups.communication = communication;
    ups.user_defined_name = QStringLiteral("Serwer");
    return ups;
}

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

    void edit(const Ups& ups)
    {
        window.setUpsEdited(true);
        window.setUpsName(ups.user_defined_name);
        window.setModel(ups.model_name);
        window.setId(ups.id);
        window.setCommunication(ups.communication);
        window.setComPort(ups.com_port);
        window.setIpAddress(ups.ip);
        window.setWriteCommunity(ups.write);
        window.setReadCommunity(ups.read);
        window.setSnmpVerion(ups.snmp_ver);
        window.setSerialNumber(ups.serial_no);
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
        auto* field = window.findChild<QLineEdit*>(QStringLiteral("upsNameEdit"));
        field->clear();
        QTest::keyClicks(field, text);
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

    void serialDeviceNeedsAFreePort()
    {
        Dialog dialog;
        QVERIFY(dialog.connect());
        dialog.choose("CORMEL PRO", "RS232");
        QComboBox* ports = dialog.box("communicationPortBox");
        QCOMPARE(ports->count(), 2);
        ports->setCurrentIndex(0);
        QVERIFY(!dialog.canSave());
        QVERIFY(ports->itemData(0, Qt::FontRole).value<QFont>().italic());
        ports->setCurrentIndex(1);
        QVERIFY(dialog.canSave());
        dialog.name(QString(90, QLatin1Char('x')));
        dialog.window.accept();
        QVERIFY(dialog.service.waitForRequest("get_available_ports", 2));
        QCOMPARE(dialog.sent("set_new_ups", "model_name"), QByteArray("CormelPro_RS232"));
        QCOMPARE(dialog.sent("set_new_ups", "com_port"), QByteArray("/dev/ttyS1"));
        QCOMPARE(dialog.sent("set_new_ups", "user_defined_name").size(), 80);
        QCOMPARE(dialog.window.result(), int(QDialog::Accepted));
    }

    void networkDeviceNeedsAnAddress()
    {
        Dialog dialog;
        QVERIFY(dialog.connect());
        dialog.choose("TARVEX NOIR", "SNMP");
        QVERIFY(!dialog.canSave());
        dialog.prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Ok, false, {}});
        QVERIFY(driveModal<SnmpOptionsWindow>([&] { dialog.window.snmpOptionsButtonClickHandler(); },
                                              [&](SnmpOptionsWindow& options) {
                                                  options.setAgentIp(QStringLiteral("192.0.2"));
                                                  options.accept();
                                                  QVERIFY(dialog.prompts.allAsked() && options.isVisible());
                                                  options.setAgentIp(QStringLiteral("192.0.2.9"));
                                                  options.setReadCommunity(QStringLiteral("public"));
                                                  options.setSnmpVer(QStringLiteral("v2c"), true);
                                                  options.accept();
                                              }));
        QVERIFY(dialog.canSave());
        // The options outlast a look at another interface.
        dialog.choose("TARVEX NOIR", "RS232");
        dialog.choose("TARVEX NOIR", "SNMP");
        dialog.window.accept();
        QVERIFY(dialog.service.waitForRequest("set_new_ups"));
        QCOMPARE(dialog.sent("set_new_ups", "communication"), QByteArray("snmp"));
        QCOMPARE(dialog.sent("set_new_ups", "ip"), QByteArray("192.0.2.9"));
        QCOMPARE(dialog.sent("set_new_ups", "read"), QByteArray("public"));
        QCOMPARE(dialog.sent("set_new_ups", "snmp_ver"), QByteArray("v2c"));
    }

    void changeIsSavedOnlyIfThereIsOne()
    {
        Dialog dialog;
        Ups ups = device(QStringLiteral("Cormel_RS232"), QStringLiteral("rs232"));
        ups.com_port = QStringLiteral("/dev/ttyS0");
        dialog.edit(ups);
        QVERIFY(!dialog.canSave());
        dialog.name(QStringLiteral("serwer"));
        QVERIFY(dialog.canSave()); // on its own port, which is in use
        dialog.name(ups.user_defined_name);
        QVERIFY(!dialog.canSave());
    }

    void whatIsGoneIsNotReplacedSilently()
    {
        Dialog dialog;
        Ups ups = device(QStringLiteral("Cormel_RS232"), QStringLiteral("rs232"));
        ups.com_port = QStringLiteral("/dev/ttyS9");
        dialog.edit(ups);
        dialog.name(QStringLiteral("other"));
        QVERIFY(!dialog.canSave());
        dialog.edit(device(QStringLiteral("Ferron_7_USB"), QStringLiteral("usb")));
        dialog.name(QStringLiteral("third"));
        QVERIFY(!dialog.canSave());
    }

    void anotherTypeAsksForItsEvents_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("changes");
        QTest::newRow("yes sends the change with a reset") << int(QMessageBox::Yes) << 1;
        QTest::newRow("no drops the change and closes") << int(QMessageBox::No) << 0;
        QTest::newRow("so does a program that quits") << int(QMessageBox::NoButton) << 0;
    }

    void anotherTypeAsksForItsEvents()
    {
        QFETCH(int, answer);
        Dialog dialog;
        QVERIFY(dialog.connect());
        dialog.edit(device(QStringLiteral("Tarvex33_USB"), QStringLiteral("usb")));
        dialog.choose("HEDRIX", "USB");
        dialog.prompts.expect({QStringLiteral("Uwaga"), QMessageBox::StandardButton(answer), false, {}});
        dialog.window.accept();
        QVERIFY(dialog.prompts.allAsked());
        QVERIFY(dialog.service.waitForRequest("get_available_ports", 2));
        QTEST(dialog.service.requestCount("change_ups"), "changes");
        QCOMPARE(dialog.window.result(), int(QDialog::Accepted));
        if (answer == QMessageBox::Yes)
            QCOMPARE(dialog.sent("change_ups", "reset_events_request"), QByteArray("1"));
    }
};

QTEST_MAIN(AddUpsWindowTest)
#include "AddUpsWindowTest.moc"
