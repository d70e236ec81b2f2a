// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SettingCatalogue.h"

#include "service/simulation/DeviceFamily.h"

#include <cstddef>

namespace Velmora::Service {

namespace {

constexpr SettingSpec number(const char* key, const char* initial, double minimum, double maximum)
{
    return {key, SettingKind::Number, initial, "", minimum, maximum};
}

constexpr SettingSpec flag(const char* key, const char* initial)
{
    return {key, SettingKind::Flag, initial, "", 0, 0};
}

constexpr SettingSpec command(const char* key)
{
    return {key, SettingKind::Command, "0", "", 0, 0};
}

constexpr SettingSpec choice(const char* key, const char* initial, const char* options)
{
    return {key, SettingKind::Choice, initial, options, 0, 0};
}

constexpr SettingSpec text(const char* key, const char* initial)
{
    return {key, SettingKind::Text, initial, "", 0, 0};
}

constexpr SettingSpec basicSettings[] = {
    number("standby_delay_minutes", "5", 1, 60),
    number("shutdown_delay", "3", 0, 60),
    number("restore_delay", "1", 0, 60),
    number("low_battery_threshold", "20", 5, 50),
    flag("sound_alarm", "1"),
    flag("waiting_force", "0"),
    flag("auto_reboot", "1"),
    choice("hid_audible_alarm_control", "enabled", "disabled;enabled;muted"),
    command("battery_short_test"),
    command("cancel_battery_test"),
    command("remote_turn_on_ups"),
    command("remote_turn_off_ups"),
};

constexpr SettingSpec standardSettings[] = {
    choice("output_voltage_option", "230", "208;220;230;240"),
    choice("output_frequency_option", "50", "50;60"),
    choice("low_battery_threshold_option", "20", "10;20;30;40"),
    choice("high_input_voltage_threshold_option", "264", "254;264;276"),
    choice("low_input_voltage_threshold_option", "184", "160;174;184"),
    choice("input_frequency_tolerance_option", "10", "1;3;5;10"),
    choice("bypass_upper_bound_option", "15", "5;10;15;20"),
    choice("bypass_lower_bound_option", "20", "10;15;20"),
    number("standby_delay", "60", 0, 65534),
    number("power_restore_returned_delay", "10", 0, 600),
    number("power_restore_line_stable_delay", "5", 0, 120),
    number("overload_point", "105", 80, 130),
    number("over_temperature_point", "60", 40, 90),
    number("battery_modules_count", "1", 0, 20),
    number("battery_test_time", "5", 1, 60),
    number("periodical_battery_test", "30", 0, 365),
    flag("audible_alarm", "1"),
    flag("bypass_audible_warning", "1"),
    flag("battery_mode_audible_warning", "1"),
    flag("buttons_sounds", "1"),
    flag("auto_reboot", "1"),
    flag("bypass_when_ups_turn_off", "0"),
    flag("forbid_bypass", "0"),
    flag("bypass", "0"),
    flag("eco_mode", "0"),
    flag("converter_mode", "0"),
    flag("green_function", "0"),
    flag("cold_start", "1"),
    flag("overload_restart", "1"),
    command("battery_short_test"),
    command("battery_test_until_low"),
    command("battery_test_for_specified_time"),
    command("cancel_battery_test"),
    command("clear_battery_info"),
    command("reset_battery_error"),
    command("remote_turn_on_ups"),
    command("remote_turn_off_ups"),
    command("restore_default_settings_ups"),
};

constexpr SettingSpec fullSettings[] = {
    number("output_voltage", "230", 200, 250),
    number("output_frequency", "50", 45, 65),
    number("lower_threshold", "184", 160, 220),
    number("upper_threshold", "264", 240, 290),
    number("lower_freq_threshold", "45", 40, 50),
    number("upper_freq_threshold", "55", 50, 65),
    number("lower_output_threshold", "207", 180, 230),
    number("upper_output_threshold", "253", 230, 270),
    number("overload_alert_threshold", "100", 50, 130),
    number("over_temperature_point", "70", 40, 90),
    number("standby_cap", "30", 0, 100),
    number("min_back_capacity", "20", 0, 100),
    number("battery_cap", "28", 1, 500),
    number("battery_modules_count", "2", 0, 40),
    number("auth_time_low_battery", "180", 10, 3600),
    number("low_battery_threshold", "20", 5, 50),
    number("battery_load_current", "40", 1, 400),
    number("standby_delay", "60", 0, 65534),
    number("modbus_address", "1", 1, 247),
    flag("sound_alarm", "1"),
    flag("key_locked", "0"),
    flag("bypass", "0"),
    flag("eco_mode", "0"),
    flag("ups_active", "1"),
    flag("epo_disabled", "0"),
    flag("bypass_check_on", "1"),
    flag("autonomy_time_prediction_enable", "1"),
    choice("frequency_mode", "sync", "sync;free"),
    choice("dry_contact_input_mode_options", "off", "off;epo;battery_test"),
    choice("dry_contact_output_mode_options", "alarm", "alarm;mains;battery"),
    choice("epo_active_state_options", "NC", "NC;NO"),
    command("batt_test"),
    command("abort_battery_test"),
    command("epo"),
    command("reset_rectifier_states"),
    command("reset_inverter_states"),
    command("reset_states"),
    command("reset_control_parameters"),
    command("remote_turn_on_ups"),
    command("remote_turn_off_ups"),
};

constexpr SettingSpec parallelSettings[] = {
    number("parallerl_unit_addr", "1", 1, 8),
    number("min_parallel_unit_count", "1", 1, 8),
};

constexpr SettingSpec networkSettings[] = {
    flag("ethernet_enable", "1"),
    command("reset_ethernet"),
    flag("dhcp_enable", "0"),
    text("snmp_agent_ip", "192.0.2.20"),
    text("network_mask", "255.255.255.0"),
    text("default_gateway", "192.0.2.1"),
    flag("http_enable", "1"),
    text("http_service_user", "admin"),
    text("http_service_pass", "admin"),
    flag("snmp_enable", "1"),
    text("read_community", "public"),
    text("write_community", "private"),
    flag("read_only", "0"),
    flag("snmp_trap_enable", "0"),
    text("snmp_notification_ip", "192.0.2.10"),
    text("snmp_notification_pass", "public"),
    text("snmp_sysname", "ups"),
    text("snmp_syslocation", "unknown"),
    text("snmp_syscontact", "administrator"),
};

constexpr SettingSpec gensetSettings[] = {
    choice("controller_mode_option", "AUTO", "OFF;MAN;AUTO"),
    text("access_code", "0"),
    flag("mains_circuit_breaker_closed", "1"),
    flag("genset_circuit_breaker_closed", "0"),
    command("remote_turn_on_genset"),
    command("remote_turn_off_genset"),
    command("reset_statistics"),
};

template <std::size_t count>
void append(QVector<SettingSpec>& specs, const SettingSpec (&more)[count])
{
    for (const SettingSpec& spec : more)
        specs.append(spec);
}

void appendForDetail(QVector<SettingSpec>& specs, Detail detail)
{
    switch (detail) {
    case Detail::Basic:
        append(specs, basicSettings);
        break;
    case Detail::Standard:
        append(specs, standardSettings);
        break;
    case Detail::Full:
        append(specs, fullSettings);
        break;
    }
}

} // namespace

QVector<SettingSpec> settingsFor(const DeviceRegistration& registration, const DeviceProfile& profile)
{
    QVector<SettingSpec> specs;
    const DeviceFamily& family = familyOf(registration.modelName);
    if (family.kind == DeviceKind::Genset) {
        append(specs, gensetSettings);
    } else if (family.kind == DeviceKind::Ups) {
        appendForDetail(specs, family.detail);
        if (profile.outputSockets > 0)
            specs.append(flag("output_socket_1", "1"));
        if (profile.outputSockets > 1)
            specs.append(flag("output_socket_2", "1"));
        if (profile.parallelUnit)
            append(specs, parallelSettings);
        if (registration.communication == QLatin1String("snmp"))
            append(specs, networkSettings);
    }
    return specs;
}

} // namespace Velmora::Service
