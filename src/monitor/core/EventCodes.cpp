// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/EventCodes.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

struct EventCode
{
    int code;
    const char* name;
};

// In rising order of the codes.
constexpr EventCode eventCodes[] = {
    {2, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Inicjalizacja")},
    {3, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Stop")},
    {4, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Czuwanie")},
    {5, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - ECO")},
    {6, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Sieciowa")},
    {7, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Rezerwowa")},
    {8, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Hybrydowa")},
    {9, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Awaryjna")},
    {10, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Bypass")},
    {11, QT_TRANSLATE_NOOP("UpsEventsWindow", "Tryb pracy - Oczekiwanie")},
    {16, QT_TRANSLATE_NOOP("UpsEventsWindow", "Zwarcie")},
    {18, QT_TRANSLATE_NOOP("UpsEventsWindow", "Przeciążenie")},
    {20, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury prostownika")},
    {22, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury falownika")},
    {24, QT_TRANSLATE_NOOP("UpsEventsWindow", "Błąd akumulatora")},
    {26, QT_TRANSLATE_NOOP("UpsEventsWindow", "Aktywne EPO")},
    {28, QT_TRANSLATE_NOOP("UpsEventsWindow", "Wewnętrzny błąd prostownika")},
    {30, QT_TRANSLATE_NOOP("UpsEventsWindow", "Błąd wewnętrzny falownika")},
    {31, QT_TRANSLATE_NOOP("UpsEventsWindow", "Błąd pracy równoległej")},
    {48, QT_TRANSLATE_NOOP("UpsEventsWindow", "Ładowanie baterii: Start")},
    {49, QT_TRANSLATE_NOOP("UpsEventsWindow", "Ładowanie baterii: Stop")},
    {50, QT_TRANSLATE_NOOP("UpsEventsWindow", "Przeciążenie: Start")},
    {51, QT_TRANSLATE_NOOP("UpsEventsWindow", "Przeciążenie: Stop")},
    {52, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury prostownika: Start")},
    {53, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury prostownika: Stop")},
    {54, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury falownika: Start")},
    {55, QT_TRANSLATE_NOOP("UpsEventsWindow", "Nadmierny wzrost temperatury falownika: Stop")},
    {56, QT_TRANSLATE_NOOP("UpsEventsWindow", "Oczekiwanie na ładunek minimalny: Start")},
    {57, QT_TRANSLATE_NOOP("UpsEventsWindow", "Oczekiwanie na ładunek minimalny: Stop")},
    {58, QT_TRANSLATE_NOOP("UpsEventsWindow", "Stan niskiej baterii: Start")},
    {59, QT_TRANSLATE_NOOP("UpsEventsWindow", "Stan niskiej baterii: Stop")},
    {60, QT_TRANSLATE_NOOP("UpsEventsWindow", "Serwis: Start")},
    {61, QT_TRANSLATE_NOOP("UpsEventsWindow", "Serwis: Stop")},
    {62, QT_TRANSLATE_NOOP("UpsEventsWindow", "Bypass: Start")},
    {63, QT_TRANSLATE_NOOP("UpsEventsWindow", "Bypass: Stop")},
    {64, QT_TRANSLATE_NOOP("UpsEventsWindow", "Brak komunikacji z modułem prostownika: Start")},
    {65, QT_TRANSLATE_NOOP("UpsEventsWindow", "Brak komunikacji z modułem prostownika: Stop")},
    {66, QT_TRANSLATE_NOOP("UpsEventsWindow", "Brak komunikacji z modułem falownika: Start")},
    {67, QT_TRANSLATE_NOOP("UpsEventsWindow", "Brak komunikacji z modułem falownika: Stop")},
    {68, QT_TRANSLATE_NOOP("UpsEventsWindow", "Niepoprawna kolejność faz linii BYPASS: Start")},
    {69, QT_TRANSLATE_NOOP("UpsEventsWindow", "Niepoprawna kolejność faz linii BYPASS: Stop")},
    {70, QT_TRANSLATE_NOOP("UpsEventsWindow", "Zasilanie linii BYPASS poza zakresem: Start")},
    {71, QT_TRANSLATE_NOOP("UpsEventsWindow", "Zasilanie linii BYPASS poza zakresem: Stop")},
    {72, QT_TRANSLATE_NOOP("UpsEventsWindow", "Otwarty obwód baterii: Start")},
    {73, QT_TRANSLATE_NOOP("UpsEventsWindow", "Otwarty obwód baterii: Stop")},
    {74, QT_TRANSLATE_NOOP("UpsEventsWindow", "Zasilanie linii podstawowej poza zakresem: Start")},
    {75, QT_TRANSLATE_NOOP("UpsEventsWindow", "Zasilanie linii podstawowej poza zakresem: Stop")},
    {76, QT_TRANSLATE_NOOP("UpsEventsWindow", "Niepoprawna kolejność faz linii podstawowej: Start")},
    {77, QT_TRANSLATE_NOOP("UpsEventsWindow", "Niepoprawna kolejność faz linii podstawowej: Stop")},
    {78, QT_TRANSLATE_NOOP("UpsEventsWindow", "Dynamiczna kompensacja mocy biernej aktywna: Start")},
    {79, QT_TRANSLATE_NOOP("UpsEventsWindow", "Dynamiczna kompensacja mocy biernej aktywna: Stop")},
};

constexpr int fieldCount = 6;

QString twoDigits(const QString& field)
{
    return field.size() == 1 ? QLatin1Char('0') + field : field;
}

} // namespace

QString eventCodeName(const QString& code)
{
    const int number = code.toInt();
    if (number == 1)
        return QStringLiteral("----");

    const auto* const end = std::end(eventCodes);
    const auto* const found =
        std::lower_bound(std::begin(eventCodes), end, number,
                         [](const EventCode& event, int wanted) { return event.code < wanted; });
    if (found == end || found->code != number)
        return QCoreApplication::translate("UpsEventsWindow", "----");
    return QCoreApplication::translate("UpsEventsWindow", found->name);
}

QStringList formatEventHistory(const QString& events)
{
    QStringList lines;
    const QStringList records = events.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    for (const QString& record : records) {
        const QStringList fields = record.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        if (fields.size() != fieldCount)
            continue;
        lines.append(twoDigits(fields.at(1)) + QLatin1Char('-') + twoDigits(fields.at(2)) + QLatin1Char(' ') +
                     twoDigits(fields.at(3)) + QLatin1Char(':') + twoDigits(fields.at(4)) + QLatin1Char(':') +
                     twoDigits(fields.at(5)) + QLatin1String(" - ") + eventCodeName(fields.at(0)));
    }
    return lines;
}

} // namespace Velmora
