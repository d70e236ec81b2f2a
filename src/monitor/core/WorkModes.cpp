// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/WorkModes.h"

#include <QCoreApplication>
#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Velmora::Utils {
namespace {

struct WorkMode
{
    const char* keyword;
    const char* text;
};

constexpr WorkMode workModes[] = {
    {"unknown", QT_TRANSLATE_NOOP("QObject", "Nieznany")},
    {"on_battery", QT_TRANSLATE_NOOP("QObject", "Rezerwowy")},
    {"on_power_line", QT_TRANSLATE_NOOP("QObject", "Sieciowy")},
    {"low_battery", QT_TRANSLATE_NOOP("QObject", "Niski stan baterii")},
    {"avr_on", QT_TRANSLATE_NOOP("QObject", "AVR")},
    {"overload", QT_TRANSLATE_NOOP("QObject", "Przeciążenie")},
    {"shortcut", QT_TRANSLATE_NOOP("QObject", "Zwarcie")},
    {"waiting_work", QT_TRANSLATE_NOOP("QObject", "Oczekiwanie")},
    {"watch", QT_TRANSLATE_NOOP("QObject", "Czuwanie")},
    {"eco", QT_TRANSLATE_NOOP("QObject", "ECO")},
    {"bypass", QT_TRANSLATE_NOOP("QObject", "Bypass")},
    {"emergency", QT_TRANSLATE_NOOP("QObject", "Awaryjny")},
    {"initialization", QT_TRANSLATE_NOOP("QObject", "Inicjalizacja")},
    {"stop", QT_TRANSLATE_NOOP("QObject", "Stop")},
    {"hybrid", QT_TRANSLATE_NOOP("QObject", "Hybrydowy")},
    {"no_communication", QT_TRANSLATE_NOOP("QObject", "Brak komunikacji")},
    {"battery_test", QT_TRANSLATE_NOOP("QObject", "Testowanie baterii")},
    {"converter", QT_TRANSLATE_NOOP("QObject", "Konwersja częstotliwości")},
    {"shutdown", QT_TRANSLATE_NOOP("QObject", "Wyłączenie UPS")},
    {"fault", QT_TRANSLATE_NOOP("QObject", "Tryb błędu")},
    {"genset_on", QT_TRANSLATE_NOOP("QObject", "Włączony")},
    {"genset_off", QT_TRANSLATE_NOOP("QObject", "Wyłączony")},
    {"self_test", QT_TRANSLATE_NOOP("QObject", "Autotest")},
    {"ups_off", QT_TRANSLATE_NOOP("QObject", "UPS wyłączony")},
    {"eco_bypass", QT_TRANSLATE_NOOP("QObject", "ECO/Bypass")},
};

} // namespace

QString decodeWorkMode(const QString& keyword)
{
    const auto* const mode =
        std::find_if(std::begin(workModes), std::end(workModes), [&keyword](const WorkMode& candidate) {
            return keyword == QLatin1String(candidate.keyword);
        });
    return mode == std::end(workModes) ? keyword : QCoreApplication::translate("QObject", mode->text);
}

} // namespace Velmora::Utils
