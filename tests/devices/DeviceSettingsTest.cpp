// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/UPSConfigurationWindow.h"
#include "devices/core/UpsConfigurationChecks.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractButton>
#include <QHBoxLayout>
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

/// The widget at `place` in the row of `key`.
QWidget* at(const QDialog& dialog, const char* key, int place = 0)
{
    return dialog.findChild<QHBoxLayout*>(QLatin1String(key))->itemAt(place)->widget();
}

} // namespace

class DeviceSettingsTest final : public QObject
{
    Q_OBJECT

private slots:
    void promptsFollowModelKeyAndValue();
    void oneRowChangesAtATime();
};

void DeviceSettingsTest::promptsFollowModelKeyAndValue()
{
    const QByteArray name(30, 'x');
    // Model, key, value and the prompts: information, question, warning, notice, refusal.
    const QVector<QByteArrayList> rows{
        {"LumoLCD_USB", "battery_short_test", "1", "I"},
        {"Tarvex_Dual31_SNMP", "epo", "1", "Q"},
        {"Tarvex_NOIR_SNMP", "epo", "1", ""},
        {"CormelRT_XL_USB", "reset_battery_error", "1", "W"},
        {"CormelRT_SNMP", "network_mask", "999.1.1.1", "N"},
        {"CormelRT_SNMP", "snmp_agent_ip", "1.1.1.1\n", "R"},
        {"CormelRT_SNMP", "snmp_notification_ip", "1.1.1.1", ""},
        {"CormelRT_SNMP", "read_community", name, ""},
        {"CormelRT_SNMP", "read_community", name + 'x', "R"},
        {"TarvexRT_SNMP", "read_community", name + 'x', ""},
        {"CormelRT_SNMP", "http_service_user", "ł", "R"},
        {"CormelRT_USB", "standby_delay", "65534", ""},
        {"CormelRT_USB", "standby_delay", "65535", "R"},
        {"CormelRT_USB", "standby_delay", "99999999999", "R"},
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
    Velmora::Utils::Ups ups;
    ups.model_name = QStringLiteral("Tarvex33_USB");
    UPSConfigurationWindow dialog(ups, nullptr);
    dialog.setConfiguration(settings("output_voltage=230.5678&epo=2&dhcp_enable=1&snmp_agent_ip=192.0.2.1&"
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

QTEST_MAIN(DeviceSettingsTest)
#include "DeviceSettingsTest.moc"
