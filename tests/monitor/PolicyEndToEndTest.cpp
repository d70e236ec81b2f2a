// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/XmlWriter.h"
#include "monitor/ServiceRun.h"
#include "policy/AdvancedOptionsWindow.h"
#include "policy/ComputerConfigurationWindow.h"
#include "policy/DiscoverWindow.h"
#include "policy/GroupConfigurationWindow.h"
#include "policy/NetworkConfigurationWindow.h"
#include "policy/OutputSocketWindow.h"
#include "policy/PowerOffWindow.h"
#include "policy/SendEmailWindow.h"
#include "policy/SysCommandWindow.h"
#include "support/ModalDriver.h"

#include <QCheckBox>
#include <QFile>
#include <QNetworkDatagram>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTreeWidget>
#include <QUdpSocket>

using namespace Velmora::Tests;

namespace {

constexpr char site[] = R"({
    "clients": [ { "address": "198.51.100.7", "password": "Klient" } ],
    "computers": [ { "name": "computer", "children": [
        { "name": "computer_name", "text": "Velmora" }, { "name": "computer_address", "text": "127.0.0.1" },
        { "name": "computer_configId", "text": "0" } ] } ],
    "devices": [
        { "id": 1, "model_name": "Quenta_USB", "user_defined_name": "Simple", "communication": "usb",
          "simulation": { "output_sockets": 2 } },
        { "id": 2, "model_name": "CormelRT_XL_SNMP", "user_defined_name": "Advanced", "communication": "snmp",
          "ip": "192.0.2.31", "read": "public", "write": "private", "snmp_ver": "v1",
          "simulation": { "output_sockets": 2 } } ] })";

void click(const QWidget& dialog, const char* button)
{
    dialog.findChild<QPushButton*>(QLatin1String(button))->click();
}

/// Everything that the service keeps, apart from what it adds to hide or complete.
QByteArray written(const NetworkConfigurationWindow& dialog)
{
    QVector<Event> events = dialog.model().events();
    return Velmora::Utils::makeXml(&dialog.model().groups(), {}) + Velmora::Utils::makeXml(&events, {}) +
           Velmora::Utils::makeXml(&dialog.model().computers());
}

template <typename Dialog>
void configure(const NetworkConfigurationWindow& window, const char* action)
{
    const QString name = QLatin1String(action);
    window.findChild<QCheckBox*>(name + QLatin1String("Box"))->setChecked(true);
    auto* button = window.findChild<QPushButton*>(name + QLatin1String("ConfigurationButton"));
    QVERIFY(driveModal<Dialog>([&] { button->click(); }, [](Dialog& dialog) { pressOk(dialog); }));
}

void adoptComputer(const NetworkConfigurationWindow& window)
{
    const auto adopt = [](ComputerConfigurationWindow& dialog) {
        typeInto(dialog, "computerNameEdit", QStringLiteral("Księgowość"));
        typeInto(dialog, "passwordEdit", QStringLiteral("Klient"));
        dialog.okButtonClickHandler();
        QTRY_VERIFY_WITH_TIMEOUT(dialog.isHidden(), patience);
    };
    const auto discover = [&](DiscoverWindow& dialog) {
        // Loopback, where test and service are, knows no broadcasts.
        QUdpSocket().writeDatagram("5", QHostAddress(ScriptedService::testAddress()), 12322);
        auto* found = dialog.findChild<QTreeWidget*>(QStringLiteral("unmanagedComputersTree"));
        QTRY_COMPARE_WITH_TIMEOUT(found->topLevelItemCount(), 1, patience);
        found->setCurrentItem(found->topLevelItem(0));
        QVERIFY(driveModal<ComputerConfigurationWindow>([&] { dialog.addButtonClickHandler(); }, adopt));
        pressOk(dialog);
    };
    QVERIFY(driveModal<DiscoverWindow>([&] { click(window, "discoverButton"); }, discover));
}

void makeGroup(const NetworkConfigurationWindow& window)
{
    const auto make = [](GroupConfigurationWindow& dialog) {
        typeInto(dialog, "groupNameEdit", QStringLiteral("Default"));
        pressOk(dialog);
        QCOMPARE(takeMessages().size(), 1); // the name is taken
        typeInto(dialog, "groupNameEdit", QStringLiteral("Biuro Łódź"));
        dialog.findChild<QTreeWidget*>(QStringLiteral("availableComputersTree"))->selectAll();
        dialog.addToGroupButtonHandler();
        pressOk(dialog);
    };
    QVERIFY(driveModal<GroupConfigurationWindow>([&] { click(window, "addGroupButton"); }, make));
}

void nameConditions(const NetworkConfigurationWindow& window)
{
    const auto name = [](AdvancedOptionsWindow& dialog) {
        typeInto(dialog, "eventNameTextEdit", QStringLiteral("Zanik"));
        for (const char* field : {"expressionTextIn", "expressionTextOut"})
            dialog.findChild<QTextEdit*>(QLatin1String(field))
                ->setPlainText(QStringLiteral("stateNormal==OFF&&(stateBatteryBackup==ON)"));
        click(dialog, "saveAsNewEventButton");
    };
    QVERIFY(driveModal<AdvancedOptionsWindow>([&] { click(window, "advancedConfigurationButton"); }, name));
}

void writeEvent(const NetworkConfigurationWindow& window)
{
    auto* groups = window.findChild<QTreeWidget*>(QStringLiteral("networkElementsTree"));
    groups->setCurrentItem(groups->topLevelItem(groups->topLevelItemCount() - 1));
    click(window, "addEventButton");
    if (window.model().isAdvanced())
        nameConditions(window);
    window.findChild<QCheckBox*>(QStringLiteral("showMessageBox"))->setChecked(true);
    typeInto(window, "messageEdit", QStringLiteral("<Zanik> & \"żółw\""));
    configure<SysCommandWindow>(window, "systemCommand");
    configure<SendEmailWindow>(window, "sendEmail");
    configure<PowerOffWindow>(window, "shutdownSystem");
    configure<OutputSocketWindow>(window, "outputSocket");
    click(window, "saveEventButton");
    QCOMPARE(takeMessages(), QStringList());
    QVERIFY(!window.model().isEditing());
}

} // namespace

/// An administrator writes a policy, with window and service as they ship.
class PolicyEndToEndTest final : public QObject
{
    Q_OBJECT

private slots:
    void policyComesBackAsItWasWritten_data();
    void policyComesBackAsItWasWritten();
};

void PolicyEndToEndTest::policyComesBackAsItWasWritten_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("a simple device") << QStringLiteral("Simple");
    QTest::newRow("an advanced device") << QStringLiteral("Advanced");
}

void PolicyEndToEndTest::policyComesBackAsItWasWritten()
{
    QFETCH(QString, device);
    QTemporaryDir folder;
    QFile scenario(folder.filePath(QStringLiteral("site.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly) && scenario.write(site) > 0 && scenario.flush());
    QProcess service;
    QVERIFY(startService(service, {QStringLiteral("--scenario"), scenario.fileName()}));
    WindowFixture panel;
    QVERIFY(openOnService(panel, device));
    QCOMPARE(logIn(panel), QStringList());
    QVERIFY(selectDevice(panel, device));
    const auto open = [&] { panel.find<QPushButton>("networkConfigurationButton")->click(); };
    const auto ready = [](const NetworkConfigurationWindow& dialog) {
        return QTest::qWaitFor(
            [&] { return dialog.findChild<QPushButton*>(QStringLiteral("addGroupButton"))->isEnabled(); },
            patience);
    };
    QByteArray saved;
    QVERIFY(driveModal<NetworkConfigurationWindow>(open, [&](NetworkConfigurationWindow& dialog) {
        QVERIFY(ready(dialog));
        adoptComputer(dialog);
        makeGroup(dialog);
        writeEvent(dialog);
        saved = written(dialog);
        dialog.accept();
    }));
    QVERIFY(saved.contains("output_sock_action") && saved.contains("sendmail_action"));
    QVERIFY(driveModal<NetworkConfigurationWindow>(open, [&](const NetworkConfigurationWindow& dialog) {
        QVERIFY(ready(dialog));
        QCOMPARE(written(dialog), saved);
        panel.window->disableAdministratorButtons();
        QVERIFY(!dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->isEnabled());
    }));
    QVERIFY(stopService(service));
}

QTEST_MAIN(PolicyEndToEndTest)
#include "PolicyEndToEndTest.moc"
