// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceMessageTexts.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

struct NumberedText
{
    int code;
    const char* source;
};

// In rising order of the codes. The texts are the sources of the translations: a slip in one stays.
constexpr NumberedText deviceMessageTexts[] = {
    {0, QT_TRANSLATE_NOOP("QObject", "Załączony AVR podwyższający")},
    {1, QT_TRANSLATE_NOOP("QObject", "Zwarcie na wyjściu zasilacza")},
    {2, QT_TRANSLATE_NOOP("QObject", "Przeciążenie zasilacza")},
    {3, QT_TRANSLATE_NOOP("QObject", "Nadmierny wzrost temperatury")},
    {4, QT_TRANSLATE_NOOP("QObject", "Zużycie akumulatora")},
    {5, QT_TRANSLATE_NOOP("QObject", "Stan niskiej baterii")},
    {6, QT_TRANSLATE_NOOP("QObject", "Wsteczne zasilanie gniazd wyjściowych")},
    {7, QT_TRANSLATE_NOOP("QObject", "Status ładowania akumulatorów")},
    {8, QT_TRANSLATE_NOOP("QObject", "Status naładowania akumulatorów")},
    {9, QT_TRANSLATE_NOOP("QObject", "Ładowanie")},
    {10, QT_TRANSLATE_NOOP("QObject", "Oczekiwanie na ładunek minimalny")},
    {11, QT_TRANSLATE_NOOP("QObject", "Serwis")},
    {12, QT_TRANSLATE_NOOP("QObject", "Bypass")},
    {13, QT_TRANSLATE_NOOP("QObject", "Przeciążenie wyjścia")},
    {14, QT_TRANSLATE_NOOP("QObject", "Błąd akumulatora")},
    {15, QT_TRANSLATE_NOOP("QObject", "Aktywne EPO")},
    {16, QT_TRANSLATE_NOOP("QObject", "Błąd wewnętrzny")},
    {17, QT_TRANSLATE_NOOP("QObject", "Nadmierny wzrost temperatury prostownika")},
    {18, QT_TRANSLATE_NOOP("QObject", "Nadmierny wzrost temperatury falownika")},
    {19, QT_TRANSLATE_NOOP("QObject", "Brak komunikacji z prostownikiem")},
    {20, QT_TRANSLATE_NOOP("QObject", "Brak komunikacji z falownikiem")},
    {21, QT_TRANSLATE_NOOP("QObject", "Niepoprawna kolejność faz linii BYPASS")},
    {22, QT_TRANSLATE_NOOP("QObject", "Zasilanie linii BYPASS poza zakresem")},
    {23, QT_TRANSLATE_NOOP("QObject", "Otwarty obwód baterii")},
    {24, QT_TRANSLATE_NOOP("QObject", "Zasilanie linii podstawowej poza zakresem")},
    {25, QT_TRANSLATE_NOOP("QObject", "Błąd wewnętrzny prostownika")},
    {26, QT_TRANSLATE_NOOP("QObject", "Błąd wewnętrzny falownika")},
    {27, QT_TRANSLATE_NOOP("QObject", "Praca normalna")},
    {28, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - MASTER")},
    {29, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - SLAVE")},
    {30, QT_TRANSLATE_NOOP("QObject", "Awaria wyświetlacza LCD")},
    {31, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - jednostka zatrzymana")},
    {32, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - brak redundancji")},
    {33, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - jednostka nieaktywna")},
    {34, QT_TRANSLATE_NOOP("QObject", "Błąd pracy równoległej")},
    {35, QT_TRANSLATE_NOOP("QObject", "Praca równoległa - brak minimalnej ilości jednostek")},
    {36,
     QT_TRANSLATE_NOOP("QObject", "Wirtualny UPS - brak wymaganej liczby skonfigurowanych UPS w Velmora")},
    {37, QT_TRANSLATE_NOOP("QObject", "Wirtualny UPS - nie skonfigurowano jednostki MASTER w Velmora")},
    {38, QT_TRANSLATE_NOOP("QObject", "Awaria zasiliania na wejściu")},
    {39, QT_TRANSLATE_NOOP("QObject", "Awaria UPS")},
    {40, QT_TRANSLATE_NOOP("QObject", "Wykonywanie testu akumulatorów")},
    {41, QT_TRANSLATE_NOOP("QObject", "Trwa wyłączanie UPS")},
    {42, QT_TRANSLATE_NOOP("QObject", "Zamienione przewody L i N na wejściu UPS")},
    {43, QT_TRANSLATE_NOOP("QObject", "Błąd EPROM")},
    {44, QT_TRANSLATE_NOOP("QObject", "Test OK")},
    {45, QT_TRANSLATE_NOOP("QObject", "Test - wynik negatywny")},
    {46, QT_TRANSLATE_NOOP("QObject", "Test baterii nie jest możliwy")},
    {47, QT_TRANSLATE_NOOP("QObject", "Test - wynik nieznany")},
    {48, QT_TRANSLATE_NOOP("QObject", "Tryb pracy normalnej")},
    {49, QT_TRANSLATE_NOOP("QObject", "Przeciążenie UPS 110%")},
    {50, QT_TRANSLATE_NOOP("QObject", "Przekroczony limit temperatury")},
    {51, QT_TRANSLATE_NOOP("QObject", "Przekroczony limit obciążenia")},
    {52, QT_TRANSLATE_NOOP("QObject", "Błąd wentylatora")},
    {53, QT_TRANSLATE_NOOP("QObject", "Błąd magistrali DC")},
    {54, QT_TRANSLATE_NOOP("QObject", "Błąd falownika")},
    {55, QT_TRANSLATE_NOOP("QObject", "Błąd oprogramowania falownika")},
    {56, QT_TRANSLATE_NOOP("QObject", "Ładowarka - za wysokie napięcie")},
    {57, QT_TRANSLATE_NOOP("QObject", "Błąd ładowarki")},
    {58, QT_TRANSLATE_NOOP("QObject", "Stan baterii nieznany")},
    {59, QT_TRANSLATE_NOOP("QObject", "Stan baterii normalny")},
    {60, QT_TRANSLATE_NOOP("QObject", "Bateria rozładowana")},
    {61, QT_TRANSLATE_NOOP("QObject", "Rozładowywanie baterii")},
    {62, QT_TRANSLATE_NOOP("QObject", "Błąd baterii")},
    {63, QT_TRANSLATE_NOOP("QObject", "Test baterii anulowany")},
    {64, QT_TRANSLATE_NOOP("QObject", "Załączony AVR")},
    {65, QT_TRANSLATE_NOOP("QObject", "Przeciążenie Bypass")},
    {66, QT_TRANSLATE_NOOP("QObject", "Konieczna wymiana akumulatorów")},
    {67, QT_TRANSLATE_NOOP("QObject", "Załączony AVR obniżający")},
    {68, QT_TRANSLATE_NOOP("QObject", "AVR podwyższający zablokowany")},
    {69, QT_TRANSLATE_NOOP("QObject", "AVR obniżający zablokowany")},
    {70, QT_TRANSLATE_NOOP("QObject", "Wentylator załączony")},
    {71, QT_TRANSLATE_NOOP("QObject", "EPO czasowo zablokowane")},
    {72, QT_TRANSLATE_NOOP("QObject", "UPS gotowy do pracy")},
    {73, QT_TRANSLATE_NOOP("QObject", "Nadmierny wzrost temperatury baterii")},
    {74, QT_TRANSLATE_NOOP("QObject", "Brak komunikacji wewnętrznej")},
    {75, QT_TRANSLATE_NOOP("QObject", "Błąd baterii")},
    {76, QT_TRANSLATE_NOOP("QObject", "Praca rezerwowa")},
    {77, QT_TRANSLATE_NOOP("QObject", "Stan niskiej baterii")},
    {78, QT_TRANSLATE_NOOP("QObject", "Bateria rozładowana")},
    {79, QT_TRANSLATE_NOOP("QObject", "Nadmierny wzrost temperatury")},
    {80, QT_TRANSLATE_NOOP("QObject", "Awaria zasiliania na wejściu")},
    {81, QT_TRANSLATE_NOOP("QObject", "Awaria zasiliania na wyjściu")},
    {82, QT_TRANSLATE_NOOP("QObject", "Przeciążenie wyjścia")},
    {83, QT_TRANSLATE_NOOP("QObject", "Bypass")},
    {84, QT_TRANSLATE_NOOP("QObject", "Awaria bypass")},
    {85, QT_TRANSLATE_NOOP("QObject", "Wyjście wyłączone na żądanie")},
    {86, QT_TRANSLATE_NOOP("QObject", "UPS wyłączony na żądanie")},
    {87, QT_TRANSLATE_NOOP("QObject", "Błąd ładowarki")},
    {88, QT_TRANSLATE_NOOP("QObject", "Wyjście wyłączone")},
    {89, QT_TRANSLATE_NOOP("QObject", "UPS wyłączony")},
    {90, QT_TRANSLATE_NOOP("QObject", "Błąd wentylatora")},
    {91, QT_TRANSLATE_NOOP("QObject", "Błąd bezpiecznika")},
    {92, QT_TRANSLATE_NOOP("QObject", "Awaria UPS")},
    {93, QT_TRANSLATE_NOOP("QObject", "Test diagnostyczny - wynik negatywny")},
    {94, QT_TRANSLATE_NOOP("QObject", "Brak komunikacji wewnętrznej")},
    {95, QT_TRANSLATE_NOOP("QObject", "Oczekiwanie na powrót zasilania")},
    {96, QT_TRANSLATE_NOOP("QObject", "Trwa wyłączanie UPS")},
    {97, QT_TRANSLATE_NOOP("QObject", "Procedura wyłączenia UPS rozpoczęta")},
    {98, QT_TRANSLATE_NOOP("QObject", "Wykonywanie testu")},
    {99, QT_TRANSLATE_NOOP("QObject", "Dynamiczna kompensacja mocy biernej")},
    {100, QT_TRANSLATE_NOOP("QObject", "Krytyczne napięcie akumulatora")},
    {101, QT_TRANSLATE_NOOP("QObject", "Przegrzanie baterii")},
    {102, QT_TRANSLATE_NOOP("QObject", "Przegrzanie falownika")},
    {187, QT_TRANSLATE_NOOP("QObject", "Brak oleju")},
    {188, QT_TRANSLATE_NOOP("QObject", "Prestart")},
    {189, QT_TRANSLATE_NOOP("QObject", "Parametry sieci poza zakresem")},
    {190, QT_TRANSLATE_NOOP("QObject", "Test - zakończony ostrzeżeniem")},
    {191, QT_TRANSLATE_NOOP("QObject", "Opóźnione załączenie wyjścia")},
    {192, QT_TRANSLATE_NOOP("QObject", "Odliczanie opóźnienia trybu oczekiwania")},
    {193, QT_TRANSLATE_NOOP("QObject", "Parametry linii zasilającej poza zakresem")},
    {194, QT_TRANSLATE_NOOP("QObject", "Parametry linii obejściowej poza zakresem")},
    {195, QT_TRANSLATE_NOOP("QObject", "Wyjścia UPS nieaktywne")},
    {196, QT_TRANSLATE_NOOP("QObject", "Wyjście sterowalne (sekcja 1) wyłączone")},
    {197, QT_TRANSLATE_NOOP("QObject", "Wyjście sterowalne (sekcja 2) wyłączone")},
    {198, QT_TRANSLATE_NOOP("QObject", "Niepoprawna kolejność faz linii podstawowej")},
    {199, QT_TRANSLATE_NOOP("QObject", "Nierozpoznany model UPS")},
    {200, QT_TRANSLATE_NOOP("QObject", "Zdjęta osłona przełącznika obejścia serwisowego")},
    {201, QT_TRANSLATE_NOOP("QObject", "Zasilanie wyjść z UPS (z podtrzymaniem)")},
    {202, QT_TRANSLATE_NOOP("QObject", "Zasilanie wyjść z sieci (bez podtrzymania)")},
    {203, QT_TRANSLATE_NOOP("QObject", "Napięcie linii zasilającej nieprawidłowe")},
    {204, QT_TRANSLATE_NOOP("QObject", "Częstotliwość linii zasilającej nieprawidłowa")},
    {205, QT_TRANSLATE_NOOP("QObject", "Napięcie linii Bypass nieprawidłowe")},
    {206, QT_TRANSLATE_NOOP("QObject", "Częstotliwość linii Bypass nieprawidłowa")},
    {207, QT_TRANSLATE_NOOP("QObject", "Ładowarka - za niskie napięcie")},
    {208, QT_TRANSLATE_NOOP("QObject", "Ładowarka - za wysokie napięcie")},
};

// Alarm list of a genset controller, which the codes from 103 on repeat in three bands.
constexpr const char* gensetAlarms[] = {
    QT_TRANSLATE_NOOP("QObject", "Niski poziom paliwa - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Niski poziom paliwa - Sd"),
    QT_TRANSLATE_NOOP("QObject", "Napięcie akumulatora poza zakresem - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Błąd alternatora - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Nadmierna prędkość obrotowa - Sd"),
    QT_TRANSLATE_NOOP("QObject", "Za mała prędkość obrotowa - Sd"),
    QT_TRANSLATE_NOOP("QObject", "Błąd uziemienia - Sd"),
    QT_TRANSLATE_NOOP("QObject", "Alarm ECU - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Brak komunikacji z ECU - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Niepoprawna kolejność faz agregatu - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Niepoprawna kolejność faz sieci - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Przeciążenie - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Zwarcie - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Niesymetryczne obciążenie faz agregatu - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Przekroczony limit obciążenia dla IDMT - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Awaria stycznika w obwodzie agregatu - Sd"),
    QT_TRANSLATE_NOOP("QObject", "Awaria stycznika w obwodzie sieci - MF"),
    QT_TRANSLATE_NOOP("QObject", "Konieczna wymiana DPF - Wrn"),
    QT_TRANSLATE_NOOP("QObject", "Napięcie agregatu poza zakresem - SD"),
    QT_TRANSLATE_NOOP("QObject", "Napięcie agregatu poza zakresem - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Niesymetryczne napięcie agregatu - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Częstotliwość agregatu poza zakresem - BOC"),
    QT_TRANSLATE_NOOP("QObject", "Napięcie sieci poza zakresem - MF"),
    QT_TRANSLATE_NOOP("QObject", "Niesymetryczne napięcie sieci- MF"),
    QT_TRANSLATE_NOOP("QObject", "Częstotliwość sieci poza zakresem - MF"),
    QT_TRANSLATE_NOOP("QObject", "Awaryjne zatrzymanie - SD"),
    QT_TRANSLATE_NOOP("QObject", "Rozładowany akumulator - SD"),
    QT_TRANSLATE_NOOP("QObject", "Serwis - Wrn"),
};

constexpr int gensetAlarmCount = static_cast<int>(std::size(gensetAlarms));
constexpr const char* gensetBandMarks[] = {"! ", "!* ", "* "};
constexpr int firstGensetCode = 103;
constexpr int endOfGensetCodes =
    firstGensetCode + gensetAlarmCount * static_cast<int>(std::size(gensetBandMarks));

DeviceMessageText gensetAlarmText(int code)
{
    const int band = (code - firstGensetCode) / gensetAlarmCount;
    const char* const source = gensetAlarms[(code - firstGensetCode) % gensetAlarmCount];
    // These two of the bands carry no mark.
    const bool unmarked = code == 132 || code == 160;
    return {unmarked ? "" : gensetBandMarks[band], source};
}

} // namespace

DeviceMessageText deviceMessageText(int code)
{
    if (code >= firstGensetCode && code < endOfGensetCodes)
        return gensetAlarmText(code);

    const auto* const end = std::end(deviceMessageTexts);
    const auto* const found =
        std::lower_bound(std::begin(deviceMessageTexts), end, code,
                         [](const NumberedText& text, int wanted) { return text.code < wanted; });
    if (found == end || found->code != code)
        return {};
    return {"", found->source};
}

} // namespace Velmora
