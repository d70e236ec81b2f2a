// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/UPSConfigurationWindow.h"
#include "devices/core/UpsConfigurationChecks.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QTest>

using namespace Velmora::Tests;

namespace {

/// Settings that are written like a query.
QMap<QString, QString> settings(const QByteArray& query)
{
    QMap<QString, QString> map;
    for (const QByteArray& setting : query.split('&'))
        map.insert(QLatin1String(setting.split('=').at(0)), QLatin1String(setting.split('=').at(1)));
    return map;
}

struct Dialog
{
    explicit Dialog(const QByteArray& query, const char* model = "CormelRT_SNMP")
    {
        Velmora::Utils::Ups ups;
        ups.model_name = QLatin1String(model);
        window = std::make_unique<UPSConfigurationWindow>(ups, nullptr);
        window->setConfiguration(settings(query));
        window->setConfiguration(settings("key_locked=1"));
    }

    /// The widget at `place` in the row of `key`.
    QWidget* at(const QByteArray& key, int place = 0)
    {
        for (const auto* row : window->findChildren<QHBoxLayout*>()) {
            if (row->property("name").toByteArray() == key)
                return row->itemAt(place)->widget();
        }
        return nullptr;
    }
    void click(const char* key, int place = 0) { qobject_cast<QAbstractButton*>(at(key, place))->click(); }
    /// Keys of a column from the top, "-" for a hidden row, in capitals while it is unlocked.
    QByteArray column(int column)
    {
        QByteArrayList keys;
        const auto* grid = window->findChild<QGridLayout*>();
        for (int row = 0; grid->itemAtPosition(row, column); ++row) {
            const QByteArray key =
                grid->itemAtPosition(row, column)->layout()->property("name").toByteArray();
            keys.append(at(key)->isHidden() ? "-" : at(key)->isEnabled() ? key.toUpper() : key);
        }
        return keys.join(' ');
    }

    std::unique_ptr<UPSConfigurationWindow> window;
};

} // namespace

class DeviceSettingsTest final : public QObject
{
    Q_OBJECT

private slots:
    void promptsFollowModelKeyAndValue();
    void oneRowChangesAtATime();
    void untouchedRowsAreNeverSent();
    void powerGoesOffAfterYesOnly();
};

void DeviceSettingsTest::promptsFollowModelKeyAndValue()
{
    const QByteArray name(30, 'x');
    // Model, key, value and the prompts: information, question, warning, notice, refusal.
    const QVector<QByteArrayList> rows{
        {"LumoLCD_USB", "battery_short_test", "1", "I"},
        {"Cormel_USB", "battery_short_test", "1", ""},
        {"Tarvex_Dual31_SNMP", "epo", "1", "Q"},
        {"Tarvex_NOIR_SNMP", "epo", "1", ""},
        {"CormelRT_XL_USB", "reset_battery_error", "1", "W"},
        {"CormelRT_SNMP", "network_mask", "999.1.1.1", "N"},
        {"CormelRT_SNMP", "snmp_agent_ip", "1.1.1.1\n", "R"},
        {"CormelRT_SNMP", "snmp_notification_ip", "1.1.1.1", ""},
        {"CormelRT_SNMP", "dhcp_enable", "1", "N"},
        {"CormelRT_SNMP", "read_community", name, ""},
        {"CormelRT_SNMP", "read_community", name + 'x', "R"},
        {"TarvexRT_SNMP", "read_community", name + 'x', ""},
        {"CormelRT_SNMP", "http_service_user", "ł", "R"},
        {"CormelRT_USB", "standby_delay", "65534", ""},
        {"CormelRT_USB", "standby_delay", "65535", "R"},
        {"CormelRT_USB", "standby_delay", "99999999999", "R"},
        {"CormelRT_USB", "standby_delay", "٣", "R"},
        {"CormelRT_USB", "standby_delay", "", ""},
    };
    for (const QByteArrayList& row : rows) {
        QByteArray kinds;
        for (const auto& prompt : Velmora::configurationPrompts(
                 QLatin1String(row.at(0)), QLatin1String(row.at(1)), QString::fromUtf8(row.at(2))))
            kinds += "IQWNR"[int(prompt.kind)];
        QCOMPARE(row.mid(0, 3) << kinds, row);
    }
}

void DeviceSettingsTest::oneRowChangesAtATime()
{
    // Eight are received, so the left column takes four. DHCP assigns the address.
    Dialog dialog("output_voltage=230&unknown=1&dhcp_enable=1&snmp_agent_ip=192.0.2.1&dummy0=x&zzz=1&"
                  "controller_mode_option=MAN;OFF;MAN&output_voltage_option=2;1;2;3");
    const QByteArray left("OUTPUT_VOLTAGE OUTPUT_VOLTAGE_OPTION DHCP_ENABLE snmp_agent_ip");
    QCOMPARE(dialog.column(0), left);
    QCOMPARE(dialog.column(1), QByteArray("CONTROLLER_MODE_OPTION -"));
    dialog.at("output_voltage", 1)->setProperty("text", QStringLiteral("231"));
    QCOMPARE(dialog.column(0), QByteArray("OUTPUT_VOLTAGE output_voltage_option dhcp_enable snmp_agent_ip"));
    QCOMPARE(dialog.window->getConfiguration(), settings("output_voltage=231"));
    dialog.at("output_voltage", 1)->setProperty("text", QStringLiteral("230"));
    dialog.click("dhcp_enable");
    dialog.click("dhcp_enable");
    QCOMPARE(dialog.column(0), left);
    dialog.click("controller_mode_option", 1);
    QCOMPARE(dialog.column(0), left.toLower());
    QVERIFY(dialog.window->getChangedProperty().first.isEmpty());
    QCOMPARE(dialog.window->getConfiguration(), settings("controller_mode_option=OFF"));
    dialog.click("controller_mode_option", 2);
    dialog.at("output_voltage_option", 1)->setProperty("currentIndex", 2);
    QCOMPARE(dialog.window->getConfiguration(), settings("output_voltage_option=3"));
}

void DeviceSettingsTest::untouchedRowsAreNeverSent()
{
    Dialog dialog("output_voltage=230.5678&on_off=2&sound_alarm=true&output_voltage_option=9;1;2&"
                  "frequency_mode=0&controller_mode_option=X;OFF");
    QVERIFY(dialog.window->getConfiguration().isEmpty());
    dialog.click("on_off");
    dialog.click("on_off");
    QCOMPARE(dialog.window->getConfiguration(), settings("on_off=1"));
}

void DeviceSettingsTest::powerGoesOffAfterYesOnly()
{
    ScriptedPrompts& prompts = ScriptedPrompts::install();
    Dialog dialog("epo=0", "Tarvex33_USB");
    dialog.window->show();
    dialog.click("epo");
    // At the second question the administrator's session ends while it stands.
    const std::function<void()> end = [&] { dialog.window->setEnabledButtons(false); };
    prompts.expect({QStringLiteral("Uwaga"), QMessageBox::No, false, {}, {}});
    prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Yes, false, end, {}});
    prompts.expect({QStringLiteral("Uwaga"), QMessageBox::Yes, false, {}, {}});
    for (const bool staysOpen : {true, true, false}) {
        dialog.window->accept();
        QCOMPARE(dialog.window->isVisible(), staysOpen);
        dialog.window->setEnabledButtons(true);
    }
    Velmora::Prompts::replace(nullptr);
}

QTEST_MAIN(DeviceSettingsTest)
#include "DeviceSettingsTest.moc"
