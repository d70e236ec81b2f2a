// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddUpsWindow.h"
#include "devices/AddVirtualUpsWindow.h"
#include "devices/SnmpOptionsWindow.h"
#include "devices/UPSConfigurationWindow.h"
#include "monitor/ServiceRun.h"
#include "support/ModalDriver.h"

#include <QComboBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaProperty>
#include <QProcess>
#include <QTemporaryDir>
#include <QTreeWidget>

using namespace Velmora::Tests;

namespace {

// Mains never fails here.
constexpr char site[] = R"({ "feeds": [ { "name": "quiet" } ], "serial_ports": [ "/dev/ttyS0" ], "devices": [
    { "id": 1, "model_name": "Virtual_Device", "user_defined_name": "Group", "phy_ids": [ 2 ] },
    { "id": 2, "model_name": "Tarvex33_SNMP", "user_defined_name": "A", "simulation": { "parallel_unit": true } },
    { "id": 3, "model_name": "Tarvex33_SNMP", "user_defined_name": "B", "simulation": { "parallel_unit": true } },
    { "id": 4, "model_name": "Borel_SNMP", "user_defined_name": "Genset" } ] })";

} // namespace

/// A site is set up by its administrator, with the window and the service as they ship.
class DeviceSetupEndToEndTest final : public QObject
{
    Q_OBJECT

private slots:
    void siteIsSetUpAndKept();

private:
    void openPanel();
    /// Registers a device through the dialog; false if that refuses it.
    [[nodiscard]] bool add(const char* model, const char* interface, const QString& name);
    /// Enters `value` into a setting's row, where a button is clicked by its text, and saves.
    void set(const char* device, const char* key, const QString& value);

    std::unique_ptr<WindowFixture> panel;
    QMap<QString, QString> m_report;
    QMap<QString, QString> m_settings;
};

void DeviceSetupEndToEndTest::openPanel()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(openOnService(*panel, QStringLiteral("Group")));
    panel->timer("pollTimer")->setInterval(400);
    using Link = Velmora::UpsSocketController;
    connect(panel->link(), &Link::upsDeviceState, this, [this](const auto& report) { m_report = report; });
    connect(panel->link(), &Link::upsConfiguration, this, [this](const auto& map) { m_settings = map; });
}

bool DeviceSetupEndToEndTest::add(const char* model, const char* interface, const QString& name)
{
    bool accepted = false;
    const auto enterAddress = [](SnmpOptionsWindow& options) {
        typeInto(options, "agentIpEdit", QStringLiteral("192.0.2.64"));
        typeInto(options, "readCommunityEdit", QStringLiteral("public"));
        typeInto(options, "writeCommunityEdit", QStringLiteral("private"));
        pressOk(options);
    };
    const auto fill = [&](AddUpsWindow& dialog) {
        const auto choose = [&dialog](const char* box, const char* text) {
            dialog.findChild<QComboBox*>(QLatin1String(box))->setCurrentText(QLatin1String(text));
        };
        choose("upsModelBox", model);
        choose("communicationInterfaceBox", interface);
        choose("communicationPortBox", "/dev/ttyS0");
        QVERIFY(qstrcmp(interface, "SNMP") != 0 ||
                driveModal<SnmpOptionsWindow>([&] { dialog.snmpOptionsButtonClickHandler(); }, enterAddress));
        QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("upsNameEdit")), name);
        pressOk(dialog);
        accepted = dialog.isHidden();
    };
    return driveModal<AddUpsWindow>([this] { panel->window->addUpsActionHandler(); }, fill) && accepted &&
           QTest::qWaitFor([&] { return panel->row(name); }, patience);
}

void DeviceSetupEndToEndTest::set(const char* device, const char* key, const QString& value)
{
    auto* open = panel->find<QPushButton>("upsConfigurationButton");
    QVERIFY(selectDevice(*panel, QString::fromLatin1(device)));
    QTRY_VERIFY_WITH_TIMEOUT(open->isEnabled(), patience);
    const auto change = [&](const UPSConfigurationWindow& dialog) {
        const QHBoxLayout* row = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((row = dialog.findChild<QHBoxLayout*>(QLatin1String(key))), patience);
        for (int i = 0; i < row->count(); ++i) {
            QWidget* control = row->itemAt(i)->widget();
            auto* button = qobject_cast<QAbstractButton*>(control);
            if (button && button->text() == value)
                button->click();
            else if (!button && !qobject_cast<QLabel*>(control))
                control->setProperty(control->metaObject()->userProperty().name(), value);
        }
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    };
    QVERIFY(driveModal<UPSConfigurationWindow>([open] { open->click(); }, change));
}

void DeviceSetupEndToEndTest::siteIsSetUpAndKept()
{
    const QTemporaryDir folder;
    QFile scenario(folder.filePath(QStringLiteral("site.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly) && scenario.write(site) > 0 && scenario.flush());
    const QStringList options{QStringLiteral("--scenario"), scenario.fileName(), QStringLiteral("--state"),
                              folder.filePath(QStringLiteral("state.json"))};
    QProcess service;
    QVERIFY(startService(service, options));
    openPanel();
    QCOMPARE(logIn(*panel), QStringList());

    QVERIFY(add("QUENTA", "USB", QStringLiteral("Desk")));
    QVERIFY(add("CORMEL PRO", "RS232", QStringLiteral("Serial")));
    QVERIFY(add("CORMEL RT", "SNMP", QStringLiteral("Net")));
    panel->prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Ok, false, {}, {}});
    QVERIFY(!add("LUMO LCD", "USB", QStringLiteral("a second one of its class")));
    const auto edit = [this] { panel->window->editActionHandler(0); };
    QVERIFY(selectDevice(*panel, QStringLiteral("Desk")));
    QVERIFY(driveModal<AddUpsWindow>(edit, [](AddUpsWindow& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("upsNameEdit")), QStringLiteral("top"));
        pressOk(dialog);
    }));
    QTRY_VERIFY_WITH_TIMEOUT(panel->row(QStringLiteral("Desktop")), patience);
    QVERIFY(selectDevice(*panel, QStringLiteral("Group")));
    QVERIFY(driveModal<AddVirtualUpsWindow>(edit, [](AddVirtualUpsWindow& dialog) {
        dialog.findChild<QTreeWidget*>()->topLevelItem(1)->setCheckState(0, Qt::Checked);
        pressOk(dialog);
    }));
    QTRY_COMPARE_WITH_TIMEOUT(panel->row(QStringLiteral("Group"))->childCount(), 2, patience);

    // A value, a choice, a text and a command; the device follows.
    set("A", "output_voltage", QStringLiteral("240"));
    QTRY_COMPARE_WITH_TIMEOUT(m_report[QStringLiteral("output_voltage")].left(6), QStringLiteral("240.0/"),
                              patience);
    set("Genset", "controller_mode_option", QStringLiteral("MAN"));
    set("Net", "snmp_sysname", QStringLiteral("<R&D>"));
    QTRY_COMPARE_WITH_TIMEOUT(m_report[QStringLiteral("snmp_sys_name")], QStringLiteral("<R&D>"), patience);
    set("Serial", "battery_short_test", QStringLiteral("Test baterii 10 s"));
    QTRY_COMPARE_WITH_TIMEOUT(m_report[QStringLiteral("device_status")], QStringLiteral("battery_test"),
                              patience);

    QVERIFY(selectDevice(*panel, QStringLiteral("Desktop")));
    panel->prompts.expect({QStringLiteral("Usuwanie UPS"), QMessageBox::Yes, false, {}, {}});
    panel->window->deleteActionHandler(0);
    QTRY_VERIFY_WITH_TIMEOUT(!panel->row(QStringLiteral("Desktop")), patience);
    panel.reset();
    QVERIFY(stopService(service) && startService(service, options));
    openPanel();
    QStringList rows;
    for (const UpsTreeElement* row : panel->tree()->allElements())
        rows.append(row->parent() ? QLatin1Char('+') + row->text(0) : row->text(0));
    QCOMPARE(rows.join(QLatin1Char(' ')), QStringLiteral("Group +A +B Genset Serial Net"));
    QVERIFY(selectDevice(*panel, QStringLiteral("A")));
    QTRY_COMPARE_WITH_TIMEOUT(m_settings[QStringLiteral("output_voltage")], QStringLiteral("240"), patience);
    QVERIFY(selectDevice(*panel, QStringLiteral("Genset")));
    QTRY_COMPARE_WITH_TIMEOUT(m_settings[QStringLiteral("controller_mode_option")].left(3),
                              QStringLiteral("MAN"), patience);
    QVERIFY(stopService(service));
}

QTEST_MAIN(DeviceSetupEndToEndTest)
#include "DeviceSetupEndToEndTest.moc"
