// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/core/LogColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

enum class Match {
    Whole,
    Part, ///< a longer key that holds this one matches too
};

struct ColumnRow
{
    const char* key;
    const char* caption;
    const char* unit;
    Match match = Match::Whole;
};

// The first row that matches counts. The texts are the sources of the translations: a slip in one stays.
constexpr ColumnRow columnRows[] = {
    {"date", QT_TRANSLATE_NOOP("UpsLogsWindow", "Data"), ""},
    {"time", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas"), ""},
    {"autonomy_time", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas autonomii"), " [min.]"},
    {"battery_capacity", QT_TRANSLATE_NOOP("UpsLogsWindow", "Stan naładowania akumulatora"), " [%]"},
    {"device_status", QT_TRANSLATE_NOOP("UpsLogsWindow", "Tryb pracy"), ""},
    {"temperature", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. wewnętrzna zasilacza"), " [°C]"},
    {"input_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Napięcie wejściowe"), " [V]"},
    {"input_frequency", QT_TRANSLATE_NOOP("UpsLogsWindow", "Częstotliowść wejściowa"), " [Hz]"},
    {"input_active_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc czynna wejściowa"), " [W]"},
    {"output_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Napięcie wyjściowe"), " [V]"},
    {"output_frequency", QT_TRANSLATE_NOOP("UpsLogsWindow", "Częstotliowść wyjściowa"), " [Hz]"},
    {"input_spurious_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc pozorna wejściowa"), " [VA]"},
    {"input_current", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd wejściowy"), " [A]"},
    {"input_pf", QT_TRANSLATE_NOOP("UpsLogsWindow", "PF wejściowy"), ""},
    {"output_active_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc czynna wyjściowa"), " [W]"},
    {"output_current", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd wyjściowy"), " [A]"},
    {"output_pf", QT_TRANSLATE_NOOP("UpsLogsWindow", "PF wyjściowy"), ""},
    {"output_spurious_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc pozorna wyjściowa"), " [VA]"},
    {"battery_current", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd akumulatorów"), " [A]", Match::Part},
    {"battery_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Napięcie akumulatorów"), " [V]", Match::Part},
    {"output_load", QT_TRANSLATE_NOOP("UpsLogsWindow", "Obciążenie"), " [%]"},
    {"output_load_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc obciążenia"), " [W]"},
    {"temperature_1", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. 1"), " [°C]"},
    {"temperature_2", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. 2"), " [°C]"},
    {"temperature_3", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. 3"), " [°C]"},
    {"temperature_4", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. 4"), " [°C]"},
    {"accumulator_capacity", QT_TRANSLATE_NOOP("UpsLogsWindow", "Pojemność akumulatorów"), " [Ah]"},
    {"bypass_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Napięcie bypass"), " [V]"},
    {"bypass_current", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd bypass"), " [A]"},
    {"bypass_active_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc czynna bypass"), " [W]"},
    {"bypass_spurious_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc pozorna bypass"), " [VA]"},
    {"input_power_factor", QT_TRANSLATE_NOOP("UpsLogsWindow", "Współczynnik mocy wyjściowej"), " [W/VA]"},
    {"bypass_power_factor", QT_TRANSLATE_NOOP("UpsLogsWindow", "Współczynnik mocy bypass"), " [W/VA]"},
    {"bypass_pf", QT_TRANSLATE_NOOP("UpsLogsWindow", "PF toru obejściowego"), ""},
    {"rectifier_power_factor", QT_TRANSLATE_NOOP("UpsLogsWindow", "Współczynnik mocy prostownika"),
     " [W/VA]"},
    {"bypass_frequency", QT_TRANSLATE_NOOP("UpsLogsWindow", "Częstotliwość bypass"), " [Hz]"},
    {"rectifier_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Napięcie prostownika"), " [V]"},
    {"rectifier_current", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd prostownika"), " [A]"},
    {"rectifier_frequency", QT_TRANSLATE_NOOP("UpsLogsWindow", "Częstotliwość prostownika"), " [Hz]"},
    {"rectifier_active_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc czynna prostownika"), " [W]"},
    {"rectifier_spurious_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc pozorna prostownika"), " [VA]"},
    {"rectifier_pf", QT_TRANSLATE_NOOP("UpsLogsWindow", "PF prostownika"), ""},
    {"accumulator_state", QT_TRANSLATE_NOOP("UpsLogsWindow", "Stan akumulatorów"), " [%]"},
    {"environment_temperature", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. otoczenia"), " [°C]"},
    {"relative_humidity", QT_TRANSLATE_NOOP("UpsLogsWindow", "Wilgotność względna"), " [%]"},
    {"input_maximum_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Maksymalne napięcie wejściowe"), " [V]"},
    {"input_minimum_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Minimalne napięcie wejściowe"), " [V]"},
    {"negative_bus_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Ujemne napięcie magistrali"), " [V]"},
    {"output_current_precentage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Prąd wyjściowy"), " [%]"},
    {"positive_bus_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Dodatnie napięcie magistrali"), " [V]"},
    {"radiator_temperature", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. radiatora"), " [°C]"},
    {"battery_temperature", QT_TRANSLATE_NOOP("UpsLogsWindow", "Temp. akumulatorów"), " [°C]"},
    {"seconds_on_battery", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas pracy rezerwowej"), " [s]"},
    {"fuel_level", QT_TRANSLATE_NOOP("UpsLogsWindow", "Poziom paliwa"), " [%]"},
    {"run_time", QT_TRANSLATE_NOOP("UpsLogsWindow", "Całkowity czas pracy"), " [h]"},
    {"tot_fuel_consum", QT_TRANSLATE_NOOP("UpsLogsWindow", "Całkowite zużycie paliwa"), " [l]"},
    {"input_line_to_line_voltage",
     QT_TRANSLATE_NOOP("UpsLogsWindow", "Nap. międzyfazowe w sieci elektrycznej"), " [V]"},
    {"output_line_to_line_voltage", QT_TRANSLATE_NOOP("UpsLogsWindow", "Wyjściowe napięcie międzyfazowe"),
     " [V]"},
    {"d_plus", QT_TRANSLATE_NOOP("UpsLogsWindow", "D+"), " [V]"},
    {"e_stops", QT_TRANSLATE_NOOP("UpsLogsWindow", "Wyłączenia awaryjne"), ""},
    {"maintenance", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas do przedlądu"), " [h]"},
    {"num_starts", QT_TRANSLATE_NOOP("UpsLogsWindow", "Liczba uruchomień"), ""},
    {"output_reactive_power", QT_TRANSLATE_NOOP("UpsLogsWindow", "Moc bierna wyjściowa"), " [VAr]",
     Match::Part},
    {"counter_mains_out_of_range", QT_TRANSLATE_NOOP("UpsLogsWindow", "Licznik zaników napięcia sieciowego"),
     "", Match::Part},
    {"counter_avr_up", QT_TRANSLATE_NOOP("UpsLogsWindow", "Licznik wyzwoleń AVR podwyższającego"), "",
     Match::Part},
    {"counter_overload", QT_TRANSLATE_NOOP("UpsLogsWindow", "Licznik przeciążeń"), "", Match::Part},
    {"counter_shortcut", QT_TRANSLATE_NOOP("UpsLogsWindow", "Licznik zwarć"), "", Match::Part},
    {"counter_discharge", QT_TRANSLATE_NOOP("UpsLogsWindow", "Licznik rozładowań"), "", Match::Part},
    {"time_on_overload", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas pracy w przeciążeniu"), " [min]",
     Match::Part},
    {"time_on_normal", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas pracy sieciowej"), " [h]", Match::Part},
    {"time_on_battery", QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas pracy autonomicznej"), " [min]",
     Match::Part},
};

bool matches(const ColumnRow& row, const QString& key)
{
    const QLatin1String known(row.key);
    return row.match == Match::Part ? key.contains(known) : key == known;
}

} // namespace

QString logColumnCaption(const QString& key)
{
    const auto* const row =
        std::find_if(std::begin(columnRows), std::end(columnRows),
                     [&key](const ColumnRow& candidate) { return matches(candidate, key); });
    if (row == std::end(columnRows))
        return key;
    return QCoreApplication::translate("UpsLogsWindow", row->caption) + QString::fromUtf8(row->unit);
}

} // namespace Velmora
