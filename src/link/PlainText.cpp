// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/PlainText.h"

namespace Velmora {

namespace {

constexpr int leadingBytes = 2;

bool isAscii(quint8 byte)
{
    return byte != 0 && byte < 0x80;
}

} // namespace

bool isPlainText(const QByteArray& bytes)
{
    // The ends of every document are ASCII. Demanding it leaves one rule for all bytes between.
    const auto* data = reinterpret_cast<const quint8*>(bytes.constData());
    const int size = bytes.size();
    if (size <= leadingBytes || !isAscii(data[0]) || !isAscii(data[1]) || !isAscii(data[size - 1]))
        return false;

    // No branches, so that the compiler checks many bytes at once: this replaces two conversions of messages
    // of any size. Leads are C2 to DF (one more byte) and E1 to EC (two more), which holds every letter in
    // use.
    quint8 wrong = 0;
    for (int i = leadingBytes; i < size; ++i) {
        const quint8 byte = data[i];
        const quint8 continues = (byte & 0xC0) == 0x80;
        const quint8 mustContinue = (data[i - 1] >= 0xC2) | (data[i - 2] >= 0xE0);
        const quint8 noLead = (byte == 0xC0) | (byte == 0xC1) | (byte == 0xE0) | (byte >= 0xED);
        wrong = static_cast<quint8>(wrong | (continues ^ mustContinue) | noLead | (byte == 0));
    }
    return wrong == 0;
}

} // namespace Velmora
