// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/DeviceFamily.h"

namespace Velmora::Service {

namespace {

// The first prefix that fits decides, so a longer one stands before a shorter one that it begins with.
constexpr DeviceFamily families[] = {
    {"Virtual_Device", DeviceKind::Virtual, Detail::Full, 3, 0, 0, 0, 0, ""},
    {"Borel", DeviceKind::Genset, Detail::Full, 3, 64000, 80000, 12, 110, "BC-25 v1.14"},
    {"Tarvex33Verde", DeviceKind::Ups, Detail::Full, 3, 40000, 40000, 480, 55, "V3.21"},
    {"Tarvex33", DeviceKind::Ups, Detail::Full, 3, 20000, 20000, 480, 28, "V3.08"},
    {"Hedrix", DeviceKind::Ups, Detail::Full, 3, 54000, 60000, 480, 75, "H2.40"},
    {"CormelMeridian", DeviceKind::Ups, Detail::Full, 3, 27000, 30000, 384, 40, "M1.12"},
    {"Tarvex_Dual31", DeviceKind::Ups, Detail::Full, 1, 18000, 20000, 240, 65, "D1.07"},
    {"Tarvex_KOMBI", DeviceKind::Ups, Detail::Full, 1, 18000, 20000, 240, 65, "K2.02"},
    {"Tarvex_NOIR", DeviceKind::Ups, Detail::Full, 1, 10000, 10000, 240, 28, "N1.30"},
    {"Tarvex_RT_PRO_1k_3k", DeviceKind::Ups, Detail::Standard, 1, 2700, 3000, 72, 18, "P1.05"},
    {"TarvexRTPlus6_10", DeviceKind::Ups, Detail::Standard, 1, 9000, 10000, 240, 18, "R6.11"},
    {"TarvexRT_6_10", DeviceKind::Ups, Detail::Standard, 1, 5400, 6000, 240, 12, "R5.02"},
    {"TARVEX_RT_PLUS", DeviceKind::Ups, Detail::Standard, 1, 2700, 3000, 72, 18, "R4.17"},
    {"TarvexRT", DeviceKind::Ups, Detail::Standard, 1, 1800, 2000, 48, 18, "R3.09"},
    {"Tarvex", DeviceKind::Ups, Detail::Standard, 1, 4200, 6000, 192, 12, "T2.00"},
    {"CormelRT", DeviceKind::Ups, Detail::Standard, 1, 1000, 1500, 48, 12, "C2.31"},
    {"CormelXL", DeviceKind::Ups, Detail::Standard, 1, 2100, 3000, 96, 9, "X1.18"},
    {"CormelPro", DeviceKind::Ups, Detail::Standard, 1, 1400, 2000, 48, 14, "P2.06"},
    {"CormelLT", DeviceKind::Ups, Detail::Standard, 1, 700, 1000, 36, 12, "L1.21"},
    {"Cormel", DeviceKind::Ups, Detail::Basic, 1, 630, 900, 24, 14, "C1.44"},
    {"LumoPro", DeviceKind::Ups, Detail::Basic, 1, 480, 800, 24, 12, "LP1.3"},
    {"LumoLCD", DeviceKind::Ups, Detail::Basic, 1, 360, 600, 12, 18, "LL1.1"},
    {"Fenna", DeviceKind::Ups, Detail::Basic, 1, 390, 650, 12, 18, "F2.2"},
    {"Quenta", DeviceKind::Ups, Detail::Basic, 1, 480, 800, 24, 12, "Q1.0"},
};

constexpr DeviceFamily unknownFamily{"", DeviceKind::Unknown, Detail::Basic, 1, 0, 0, 0, 0, ""};

} // namespace

const DeviceFamily& familyOf(const QString& modelName)
{
    for (const DeviceFamily& family : families) {
        if (modelName.startsWith(QLatin1String(family.prefix)))
            return family;
    }
    return unknownFamily;
}

} // namespace Velmora::Service
