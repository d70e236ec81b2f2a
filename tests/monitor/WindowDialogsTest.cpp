// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ApplicationConfigurationWindow.h"
#include "admin/SmtpTestWindow.h"
#include "devices/UPSConfigurationWindow.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/UpsEventsWindow.h"
#include "monitor/WindowFixture.h"
#include "support/ModalDriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>

using namespace Velmora::Tests;

namespace {

const QString connected = QStringLiteral("Połączono z usługą:");
const QString lost = QStringLiteral("Błąd połączenia z usługą:");

QByteArray report(const QByteArray& inputVoltage, const QByteArray& events = "2;3;4;5;6;7|")
{
    return stateReport("<battery_capacity>80</battery_capacity><input_voltage>" + inputVoltage +
                       "</input_voltage><events>" + events + "</events>");
}

} // namespace

/// The dialogs as the window opens, wires and outlives them.
class WindowDialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { panel.reset(); }
    void dialogsOutliveTheLink_data();
    void dialogsOutliveTheLink();
    void informationIsOfTheSelectedDevice();
    void serviceSettingsAreSavedWhole();
    void settingReachesNoOtherDevice();

private:
    void open(const char* control) const;

    std::unique_ptr<WindowFixture> panel;
};

void WindowDialogsTest::init()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(panel->open(deviceList({device(1, "Tarvex33_SNMP", "A"), device(2, "Borel_SNMP", "B")})));
    QVERIFY(panel->send(report("230")));
    QCOMPARE(panel->shown("serviceTitle"), connected);
}

void WindowDialogsTest::open(const char* control) const
{
    QObject* object = panel->find(control);
    QMetaObject::invokeMethod(object, qobject_cast<QAction*>(object) ? "trigger" : "click");
}

void WindowDialogsTest::dialogsOutliveTheLink_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::newRow("login") << QByteArray("actionActAsAdministrator");
    QTest::newRow("password change") << QByteArray("actionChangePassword");
    QTest::newRow("service-wide settings") << QByteArray("actionApplicationConfiguration");
    QTest::newRow("service address") << QByteArray("actionConnectWithService");
    QTest::newRow("extended information") << QByteArray("actionExtendInformation");
    QTest::newRow("events") << QByteArray("upsEventsButton");
}

void WindowDialogsTest::dialogsOutliveTheLink()
{
    QFETCH(QByteArray, control);
    if (control != "actionActAsAdministrator")
        panel->window->enableAdministratorButtons();
    QPointer<QDialog> opened;
    const auto interrupt = [&](QDialog& dialog) {
        opened = &dialog;
        // The tree is built anew below the dialog, without the device that was selected.
        QVERIFY(panel->send(deviceList({device(2, "Borel_SNMP", "B")})));
        QVERIFY(panel->send(stateReport("<fuel_level>70</fuel_level><input_voltage>231</input_voltage>")));
        QCOMPARE(panel->tree()->allElements().size(), std::size_t(1));

        panel->timer("socketErrorTimer")->setInterval(1);
        panel->service.stop();
        QTRY_COMPARE(panel->shown("serviceTitle"), lost);
        QVERIFY(!panel->find<QAction>("actionLogout")->isEnabled());
        QVERIFY(dialog.isVisible() && dialog.isEnabled());
        QVERIFY(panel->service.start());
        QTRY_VERIFY(panel->timer("reconnectTimer"));
        panel->timer("reconnectTimer")->setInterval(20);
        QTRY_VERIFY(panel->timer("pollTimer"));
        panel->timer("pollTimer")->stop();
        QVERIFY(panel->send(report("232")));
        QCOMPARE(panel->shown("serviceTitle"), connected);
        QVERIFY(dialog.isVisible() && dialog.isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    QVERIFY(driveModal<QDialog>([&] { open(control.constData()); }, interrupt));
    QTRY_VERIFY(!opened);
    QVERIFY(!panel->window->findChild<QDialog*>());

    // Answers for the dialog that is gone find nobody, and the window goes on.
    panel->service.sendTogether(
        {"<get_password>0</get_password>", "<admin_password_changed/>", report("233")});
    QVERIFY(panel->settle());
    QVERIFY(!panel->find<QAction>("actionLogout")->isEnabled());
    QCOMPARE(takeMessages(), QStringList());
    QCOMPARE(panel->service.requests().constLast().xml, QByteArray("<settle><pass></pass></settle>"));
}

void WindowDialogsTest::informationIsOfTheSelectedDevice()
{
    QVERIFY(panel->send(report("232", "3;3;4;5;7;0|2;3;4;5;6;7|")));
    QVERIFY(driveModal<UpsEventsWindow>([this] { open("upsEventsButton"); },
                                        [this](const UpsEventsWindow& dialog) {
                                            const auto* events = dialog.findChild<QListView*>()->model();
                                            QCOMPARE(events->rowCount(), 2);
                                            QVERIFY(panel->send(report("230")));
                                            QCOMPARE(events->rowCount(), 1);
                                        }));
    // Of a device that has not reported yet nothing is shown, rather than values of the one before.
    panel->tree()->setCurrentItem(panel->row(QStringLiteral("B")));
    QVERIFY(driveModal<ExtendInformationWindow>(
        [this] { open("exInfoButton"); },
        [](const QDialog& dialog) { QVERIFY(!dialog.findChild<QLineEdit*>()); }));
}

void WindowDialogsTest::serviceSettingsAreSavedWhole()
{
    const QByteArray settings =
        "<smtp2_security_type>ssl</smtp2_security_type><smtp2_server>mail</smtp2_server>"
        "<smtp2_port>25</smtp2_port><smtp2_timeout>30</smtp2_timeout>"
        "<smtp2_sender_address>a@b.c.pl</smtp2_sender_address>"
        "<smtp2_authentication>1</smtp2_authentication><smtp2_user>u</smtp2_user>"
        "<smtp2_pass>p</smtp2_pass><log_files_path>/l</log_files_path>"
        "<run_on_boot>1</run_on_boot><control_panel_path></control_panel_path>";
    const auto followTest = [&](const SmtpTestWindow& test) {
        QVERIFY(panel->service.waitForRequest("smtp2_send_test_mail"));
        QVERIFY(panel->send("<smtp2_test_status><current_status>1</current_status></smtp2_test_status>"));
        QVERIFY(!test.findChild<QTimer*>(QStringLiteral("noCommunicationTimer"))->isActive());
        QVERIFY(panel->send("<smtp2_test_status><current_status>0</current_status></smtp2_test_status>"));
        QCOMPARE(test.findChild<QLabel*>(QStringLiteral("statusText"))->text(),
                 QStringLiteral("Konfiguracja błędna"));
    };
    const auto edit = [&](const ApplicationConfigurationWindow& dialog) {
        // The buttons go on with the service, before it has said what would be overwritten.
        QVERIFY(panel->send("<daemon_is_ready/>"));
        pressOk(dialog);
        QVERIFY(panel->send("<application_configuration>" + settings + "</application_configuration>"));
        for (const auto& [name, wrong] : {std::make_pair("smtpPortEdit", "1,000"),
                                          {"smtpPortEdit", "70000"},
                                          {"smtpTimeoutEdit", "9"},
                                          {"smtpServerEdit", ""},
                                          {"smtpSenderAddressEdit", "a@b.abcdefg"}}) {
            auto* field = dialog.findChild<QLineEdit*>(QLatin1String(name));
            const QString right = field->text();
            field->setText(QLatin1String(wrong));
            pressOk(dialog);
            QVERIFY2(!field->styleSheet().isEmpty(), wrong);
            field->setText(right);
        }
        QCOMPARE(panel->service.requestCount("application_configuration"), 0);
        auto* test = dialog.findChild<QPushButton*>(QStringLiteral("smtpTestButton"));
        QVERIFY(driveModal<SmtpTestWindow>([test] { test->click(); }, followTest));
        pressOk(dialog);
    };
    panel->window->enableAdministratorButtons();
    QVERIFY(
        driveModal<ApplicationConfigurationWindow>([this] { open("aplicationConfigurationButton"); }, edit));
    QVERIFY(panel->service.waitForRequest("application_configuration"));
    QVERIFY(panel->service.requests().constLast().xml.contains(settings));

    // Without a mail account everything else can be saved, again and again.
    const auto leaveBlank = [&](const ApplicationConfigurationWindow& dialog) {
        QVERIFY(panel->send("<application_configuration><log_files_path>/l</log_files_path>"
                            "<smtp2_port>0</smtp2_port></application_configuration>"));
        pressOk(dialog);
    };
    QVERIFY(driveModal<ApplicationConfigurationWindow>([this] { open("aplicationConfigurationButton"); },
                                                       leaveBlank));
    QVERIFY(panel->service.waitForRequest("application_configuration", 2));
}

void WindowDialogsTest::settingReachesNoOtherDevice()
{
    const QByteArray settings("<ups_configuration><epo>0</epo></ups_configuration>");
    panel->window->enableAdministratorButtons();
    QVERIFY(panel->send(settings));
    const auto useWhileTheDeviceGoes = [&](UPSConfigurationWindow& dialog) {
        QVERIFY(panel->send(settings));
        dialog.findChild<QCheckBox*>()->click();
        const auto go = [this] { QVERIFY(panel->send(deviceList({device(2, "Borel_SNMP", "B")}))); };
        panel->prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Yes, false, go, {}});
        dialog.accept();
    };
    QVERIFY(driveModal<UPSConfigurationWindow>([this] { open("upsConfigurationButton"); },
                                               useWhileTheDeviceGoes));
    QCOMPARE(takeMessages().size(), 1);
    QVERIFY(panel->settle());
    QCOMPARE(panel->service.requestCount("set_ups_configuration"), 0);
}

QTEST_MAIN(WindowDialogsTest)
#include "WindowDialogsTest.moc"
