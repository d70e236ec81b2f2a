// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ApplicationConfigurationWindow.h"
#include "admin/LogiInWindow.h"
#include "admin/SmtpTestWindow.h"
#include "devices/UPSConfigurationWindow.h"
#include "link/TextHelpers.h"
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
using Velmora::Utils::makeMd5;

namespace {

const QString password = QStringLiteral("Opiekunsystem");
const QString connected = QStringLiteral("Połączono z usługą:");
const QString lost = QStringLiteral("Błąd połączenia z usługą:");

QByteArray digestReply()
{
    return "<get_password>" + makeMd5(password).toUtf8() + "</get_password>";
}

QByteArray report(const QByteArray& inputVoltage, const QByteArray& events = "2;3;4;5;6;7|")
{
    return stateReport("<battery_capacity>80</battery_capacity><input_voltage>" + inputVoltage +
                       "</input_voltage><events>" + events + "</events>");
}

QString firstValue(const QDialog& dialog)
{
    return dialog.findChild<QLineEdit*>()->text();
}

int eventCount(const QDialog& dialog)
{
    return dialog.findChild<QListView*>()->model()->rowCount();
}

} // namespace

/// The dialogs as the window opens, wires and outlives them.
class WindowDialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void loginOpensAdministratorMode();
    void dialogsOutliveTheLink_data();
    void dialogsOutliveTheLink();
    void extendedInformationFollowsTheReports();
    void eventsFollowTheReports();
    void serviceSettingsAreSavedWhole();
    void settingReachesNoOtherDevice();

private:
    void open(const char* control) const;
    [[nodiscard]] bool isAdministrator() const;
    /// The digest that the next request carries.
    [[nodiscard]] QByteArray carriedRequest();

    const QByteArray m_devices = deviceList({device(1, "Tarvex33_SNMP", "A"), device(2, "Borel_SNMP", "B")});
    std::unique_ptr<WindowFixture> panel;
};

void WindowDialogsTest::init()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(panel->open(m_devices));
    QVERIFY(panel->send(report("230")));
    QCOMPARE(panel->shown("serviceTitle"), connected);
}

void WindowDialogsTest::cleanup()
{
    panel.reset();
}

void WindowDialogsTest::open(const char* control) const
{
    auto* object = panel->find(control);
    QVERIFY2(object->property("enabled").toBool(), control);
    if (auto* action = qobject_cast<QAction*>(object))
        action->trigger();
    else
        QTest::mouseClick(qobject_cast<QPushButton*>(object), Qt::LeftButton);
}

bool WindowDialogsTest::isAdministrator() const
{
    return panel->find<QAction>("actionLogout")->isEnabled();
}

QByteArray WindowDialogsTest::carriedRequest()
{
    return panel->settle() ? panel->service.requests().constLast().xml : QByteArray();
}

void WindowDialogsTest::loginOpensAdministratorMode()
{
    panel->service.replyTo("get_password", digestReply());
    QVERIFY(driveModal<LogiInWindow>([this] { open("actionActAsAdministrator"); },
                                     [this](LogiInWindow& dialog) {
                                         QTest::keyClicks(dialog.focusWidget(), password);
                                         QTest::keyClick(&dialog, Qt::Key_Return);
                                         QTRY_VERIFY(isAdministrator());
                                         QVERIFY(dialog.isHidden());
                                     }));
    QCOMPARE(panel->service.requestCount("get_password"), 1);
    QVERIFY(panel->window->windowTitle().endsWith(QLatin1String(" (Administrator)")));
    panel->service.clearRequests();
    panel->tree()->setCurrentItem(panel->row(QStringLiteral("B")));
    panel->link()->getUpsDeviceData();
    QVERIFY(panel->settle());
    QVERIFY(panel->service.requests().size() >= 3);
    for (const Request& request : panel->service.requests())
        QVERIFY2(request.xml.contains("<pass>" + makeMd5(password).toUtf8() + "</pass>"),
                 request.xml.constData());

    panel->find<QAction>("actionLogout")->trigger();
    QCOMPARE(carriedRequest(), QByteArray("<settle><pass></pass></settle>"));
}

void WindowDialogsTest::dialogsOutliveTheLink_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QByteArray>("dialogName");
    QTest::addColumn<bool>("asksTheService");
    const auto row = [](const char* name, const char* control, const char* dialog, bool asks) {
        QTest::newRow(name) << QByteArray(control) << QByteArray(dialog) << asks;
    };
    row("login", "actionActAsAdministrator", "LogiInWindow", true);
    row("password change", "actionChangePassword", "PasswordChangeWindow", true);
    row("service-wide settings", "actionApplicationConfiguration", "ApplicationConfigurationWindow", false);
    row("service address", "actionConnectWithService", "ConnectWithServiceWindow", false);
    row("extended information", "actionExtendInformation", "ExtendInformationWindow", false);
    row("events", "upsEventsButton", "UpsEventsWindow", false);
}

void WindowDialogsTest::dialogsOutliveTheLink()
{
    QFETCH(QByteArray, control);
    QFETCH(QByteArray, dialogName);
    QFETCH(bool, asksTheService);
    if (control != "actionActAsAdministrator")
        panel->window->enableAdministratorButtons();
    QPointer<QDialog> opened;
    const auto interrupt = [&](QDialog& dialog) {
        opened = &dialog;
        QCOMPARE(dialog.metaObject()->className(), dialogName.constData());
        if (asksTheService) {
            pressOk(dialog);
            QVERIFY(panel->service.waitForRequest("get_password"));
        }
        // The tree is built anew below the dialog, without the device that was selected.
        QVERIFY(panel->send(deviceList({device(2, "Borel_SNMP", "B")})));
        QVERIFY(panel->send(stateReport("<fuel_level>70</fuel_level><input_voltage>231</input_voltage>")));
        QCOMPARE(panel->tree()->allElements().size(), std::size_t(1));

        panel->timer("socketErrorTimer")->setInterval(1);
        panel->service.stop();
        QTRY_COMPARE(panel->shown("serviceTitle"), lost);
        QVERIFY(!isAdministrator());
        QVERIFY(dialog.isVisible() && dialog.isEnabled());
        if (asksTheService) {
            pressOk(dialog);
            dialog.findChild<QTimer*>(QStringLiteral("noResponseTimer"))->setInterval(1);
            QCOMPARE(awaitMessages().size(), 1);
        }
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
    panel->service.sendTogether({digestReply(), "<admin_password_changed/>", report("233")});
    QVERIFY(panel->settle());
    QVERIFY(!isAdministrator());
    QCOMPARE(takeMessages(), QStringList());
    QCOMPARE(carriedRequest(), QByteArray("<settle><pass></pass></settle>"));
}

void WindowDialogsTest::extendedInformationFollowsTheReports()
{
    const auto look = [this](const auto& act) {
        return driveModal<ExtendInformationWindow>([this] { open("exInfoButton"); }, act);
    };
    QVERIFY(look([this](ExtendInformationWindow& dialog) {
        QCOMPARE(firstValue(dialog), QStringLiteral("230 V"));
        QVERIFY(panel->send(report("231")));
        QCOMPARE(firstValue(dialog), QStringLiteral("231 V"));
        // A report that failed leaves the values.
        QVERIFY(panel->send(stateReport("<input_voltage>0</input_voltage>", false)));
        QCOMPARE(firstValue(dialog), QStringLiteral("231 V"));
        pressOk(dialog);
        QVERIFY(dialog.isHidden());
    }));
    QVERIFY(panel->send(report("232")));
    QVERIFY(look([](const ExtendInformationWindow& dialog) {
        QCOMPARE(firstValue(dialog), QStringLiteral("232 V"));
    }));
}

void WindowDialogsTest::eventsFollowTheReports()
{
    QVERIFY(driveModal<UpsEventsWindow>([this] { open("upsEventsButton"); },
                                        [this](UpsEventsWindow& dialog) {
                                            QCOMPARE(eventCount(dialog), 1);
                                            QVERIFY(panel->send(report("230", "3;3;4;5;7;0|2;3;4;5;6;7|")));
                                            QCOMPARE(eventCount(dialog), 2);
                                            QVERIFY(panel->send(
                                                stateReport("<battery_capacity>80</battery_capacity>")));
                                            QCOMPARE(eventCount(dialog), 2);
                                            pressOk(dialog);
                                            QVERIFY(dialog.isHidden());
                                        }));
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
