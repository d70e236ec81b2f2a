// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/ExtendedInformation.h"

#include <QCoreApplication>
#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

struct CatalogueRow
{
    const char* key;
    const char* label;
    const char* unit;
};

constexpr CatalogueRow catalogueRows[] = {
    {"input_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie wejściowe"), "V"},
    {"input_line_to_line_voltage",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie międzyfazowe w sieci elektrycznej"), "V"},
    {"input_frequency", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Częstotliwość wejściowa"), "Hz"},
    {"input_active_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna wejściowa"), "W"},
    {"output_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie wyjściowe"), "V"},
    {"output_line_to_line_voltage",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Wyjściowe napięcie międzyfazowe"), "V"},
    {"output_frequency", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Częstotliwość wyjściowa"), "Hz"},
    {"input_spurious_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna wejściowa"), "VA"},
    {"input_current", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd wejściowy"), "A"},
    {"input_pf", QT_TRANSLATE_NOOP("ExtendInformationWindow", "PF wejściowy"), ""},
    {"output_active_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna wyjściowa"), "W"},
    {"output_current", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd wyjściowy"), "A"},
    {"output_pf", QT_TRANSLATE_NOOP("ExtendInformationWindow", "PF wyjściowy"), ""},
    {"output_reactive_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc bierna wyjściowa"), "VAr"},
    {"output_spurious_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna wyjściowa"), "VA"},
    {"battery_current", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd akumulatorów"), "A"},
    {"battery_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie akumulatorów"), "V"},
    {"temperature", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura"), TEMPERATURE_LABEL},
    {"output_load", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Obciążenie"), "%"},
    {"output_load_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc obciążenia"), "W"},
    {"temperature1", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura bloku DC/AC"),
     TEMPERATURE_LABEL},
    {"temperature2", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura bloku DC/AC"),
     TEMPERATURE_LABEL},
    {"temperature3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura"), TEMPERATURE_LABEL},
    {"temperature4", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura"), TEMPERATURE_LABEL},
    {"radiator_temperature", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura radiatora"),
     TEMPERATURE_LABEL},
    {"battery_temperature", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura akumulatora"),
     TEMPERATURE_LABEL},
    {"seconds_on_battery", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Czas pracy rezerwowej"), "s"},
    {"mac_address", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Adres MAC"), ""},
    {"ip_address", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Adres IP"), ""},
    {"network_mask", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Maska sieci"), ""},
    {"default_gateway", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Brama domyślna"), ""},
    {"accumulator_capacity", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Pojemność akumulatorów"), "Ah"},
    {"bypass_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie bypass"), "V"},
    {"bypass_voltage_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie bypass L1/L2/L3"),
     "V"},
    {"bypass_current", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd bypass"), "A"},
    {"bypass_current_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd bypass L1/L2/L3"), "A"},
    {"input_active_power_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna wej L1/L2/L3"),
     "W"},
    {"output_active_power_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna wyj L1/L2/L3"),
     "W"},
    {"bypass_active_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna bypass"), "W"},
    {"bypass_active_power_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna byp L1/L2/L3"),
     "W"},
    {"output_reactive_power_L1_L2_L3",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc bierna wyj L1/L2/L3"), "VAr"},
    {"input_spurious_power_L1_L2_L3",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna wej L1/L2/L3"), "VA"},
    {"output_pf_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "PF wyjściowy L1/L2/L3"), ""},
    {"output_spurious_power_L1_L2_L3",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna wyj L1/L2/L3"), "VA"},
    {"bypass_spurious_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna bypass"), "VA"},
    {"bypass_spurious_power_L1_L2_L3",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna byp L1/L2/L3"), "VA"},
    {"input_power_factor", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Współczynnik mocy wyjściowej"),
     "W/VA"},
    {"bypass_power_factor", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Współczynnik mocy bypass"), "W/VA"},
    {"bypass_pf", QT_TRANSLATE_NOOP("ExtendInformationWindow", "PF toru obejściowego"), ""},
    {"rectifier_power_factor", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Współczynnik mocy prostownika"),
     "W/VA"},
    {"bypass_frequency", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Częstotliwość bypass"), "Hz"},
    {"rectifier_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie prostownika"), "V"},
    {"rectifier_current", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd prostownika"), "A"},
    {"rectifier_frequency", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Częstotliwość prostownika"), "Hz"},
    {"rectifier_active_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc czynna prostownika"), "W"},
    {"rectifier_spurious_power", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Moc pozorna prostownika"),
     "VA"},
    {"rectifier_pf", QT_TRANSLATE_NOOP("ExtendInformationWindow", "PF prostownika"), ""},
    {"accumulator_state", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Stan akumulatorów"), "%"},
    {"environment_temperature", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Temperatura otoczenia"),
     TEMPERATURE_LABEL},
    {"relative_humidity", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Wilgotność względna"), "%"},
    {"input_maximum_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Maksymalne napięcie wejściowe"),
     "V"},
    {"input_minimum_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Minimalne napięcie wejściowe"),
     "V"},
    {"positive_bus_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Dodatnie napięcie magistrali"),
     "V"},
    {"negative_bus_voltage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Ujemne napięcie magistrali"), "V"},
    {"output_current_precentage", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Prąd wyjściowy"), "%"},
    {"compensation_base_factor_L1_L2_L3",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Bazowy współczynnik kompensacji"), ""},
    {"compensation_factor_L1_L2_L3", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Współczynnik kompensacji"),
     ""},
    {"d_plus", QT_TRANSLATE_NOOP("ExtendInformationWindow", "D+"), "V"},
    {"fuel_level", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Poziom paliwa"), "%"},
    {"run_time", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Całkowity czas pracy"), "h"},
    {"tot_fuel_consum", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Całkowite zużycie paliwa"), "l"},
    {"num_starts", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Liczba uruchomień"), ""},
    {"e_stops", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Wyłączenia awaryjne"), ""},
    {"maintenance", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Czas do przeglądu"), "h"},
    {"serial_number", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Numer seryjny sterownika"), ""},
    {"counter_mains_out_of_range",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Licznik zaników napiecia sieciowego"), ""},
    {"counter_avr_up", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Licznik wyzwoleń AVR podwyższającego"),
     ""},
    {"counter_overload", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Licznik przeciążeń"), ""},
    {"counter_shortcut", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Licznik zwarć"), ""},
    {"counter_discharge", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Licznik rozładowań"), ""},
    {"time_on_overload", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Czas pracy w przeciążeniu"), "min"},
    {"time_on_normal", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Czas pracy sieciowej"), "h"},
    {"time_on_battery", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Czas pracy autonomicznej"), "min"},
    {"battery_remaining_time_limit",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Próg sygnalizacji niskiego poziomu baterii"), "s"},
    {"ups_serial_number", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Numer fabryczny UPS"), ""},
    {"snmp_sys_name", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Nazwa urządzenia"), ""},
    {"snmp_sys_location", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Lokalizacja urządzenia"), ""},
    {"snmp_sys_contact", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Osoba kontaktowa"), ""},
    {"snmp_agent_firmware_version", QT_TRANSLATE_NOOP("ExtendInformationWindow", "Wersja firmware karty NMC"),
     ""},
    {"maximum_number_of_ups_module",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Maksymalna ilość modułów UPS"), ""},
    {"rated_va_per_ups_module",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Znamionowa moc pozorna pojedynczego\nmodułu UPS"), "VA"},
    {"ups_input_output_phase",
     QT_TRANSLATE_NOOP("ExtendInformationWindow", "Konfiguracja faz wejściowych/wyjściowych UPS"), ""},
};

constexpr const char* identifyingKeys[] = {"ups_input_output_phase",
                                           "rated_va_per_ups_module",
                                           "maximum_number_of_ups_module",
                                           "snmp_agent_firmware_version",
                                           "snmp_sys_contact",
                                           "snmp_sys_location",
                                           "snmp_sys_name",
                                           "ups_serial_number",
                                           "battery_remaining_time_limit"};

/// A genset measures the mains it stands in for, not an input of its own.
const char* gensetLabel(const QString& key)
{
    if (key == QLatin1String("input_voltage"))
        return QT_TRANSLATE_NOOP("ExtendInformationWindow", "Napięcie fazowe w sieci elektrycznej");
    if (key == QLatin1String("input_frequency"))
        return QT_TRANSLATE_NOOP("ExtendInformationWindow", "Częstotliwość w sieci elektrycznej");
    return nullptr;
}

QStringList keysWorthOpening()
{
    QStringList keys;
    for (const CatalogueRow& row : catalogueRows) {
        const QLatin1String key(row.key);
        const bool identifies = std::any_of(std::begin(identifyingKeys), std::end(identifyingKeys),
                                            [key](const char* other) { return key == QLatin1String(other); });
        if (!identifies)
            keys.append(key);
    }
    return keys;
}

} // namespace

ExInformation::ExInformation(const QString& key_, const QString& label_, const QString& unit_)
    : key(key_)
    , label(label_)
    , unit(unit_)
{}

QList<ExInformation> extendedInformationCatalogue(bool isGenset)
{
    QList<ExInformation> catalogue;
    catalogue.reserve(static_cast<int>(std::size(catalogueRows)));
    for (const CatalogueRow& row : catalogueRows) {
        const QString key = QString::fromLatin1(row.key);
        const char* const special = isGenset ? gensetLabel(key) : nullptr;
        const QString label =
            QCoreApplication::translate("ExtendInformationWindow", special != nullptr ? special : row.label);
        catalogue.append(ExInformation(key, label, QString::fromUtf8(row.unit)));
    }
    return catalogue;
}

const QStringList& exInformationsNames()
{
    static const QStringList names = keysWorthOpening();
    return names;
}

bool containsAny(const QMap<QString, QString>& report)
{
    const QStringList& names = exInformationsNames();
    return std::any_of(names.cbegin(), names.cend(),
                       [&report](const QString& name) { return report.contains(name); });
}

} // namespace Velmora
