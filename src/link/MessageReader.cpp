// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/MessageReader.h"

#include "link/PlainText.h"

namespace Velmora {

namespace {

// The reader guesses the encoding of bytes from the first four and obeys a declaration; of a text it does
// neither.
constexpr int bytesToGuessFrom = 4;

bool readsAsUtf8(const QByteArray& bytes)
{
    return bytes.size() >= bytesToGuessFrom && !bytes.startsWith("<?xml") && isPlainText(bytes);
}

} // namespace

QXmlStreamReader readMessageBytes(const QByteArray& bytes)
{
    return readsAsUtf8(bytes) ? QXmlStreamReader(bytes) : QXmlStreamReader(QString::fromUtf8(bytes));
}

} // namespace Velmora
