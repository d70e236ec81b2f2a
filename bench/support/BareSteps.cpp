// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/support/BareSteps.h"

#include "link/LinkKeys.h"

#include <QXmlStreamReader>
#include <QtEndian>

namespace Velmora::Bench {

namespace {

constexpr int keySize = 8;

const char* keyParts()
{
    static const quint64 littleEndian = qToLittleEndian<quint64>(messageKey);
    return reinterpret_cast<const char*>(&littleEndian);
}

void chain(QByteArray& bytes)
{
    char last = 0;
    const char* key = keyParts();
    char* data = bytes.data();
    for (int pos = 0; pos < bytes.size(); ++pos) {
        last = static_cast<char>(data[pos] ^ key[pos % keySize] ^ last);
        data[pos] = last;
    }
}

void unchain(QByteArray& bytes)
{
    char last = 0;
    const char* key = keyParts();
    char* data = bytes.data();
    for (int pos = 0; pos < bytes.size(); ++pos) {
        const char enciphered = data[pos];
        data[pos] = static_cast<char>(enciphered ^ key[pos % keySize] ^ last);
        last = enciphered;
    }
}

} // namespace

Packed pack(const QByteArray& message)
{
    QByteArray packed = qCompress(message, 9);
    const bool compressed = packed.size() < message.size();
    if (!compressed)
        packed = message;
    chain(packed);
    return {packed, compressed};
}

qint64 bareEncode(const QByteArray& message)
{
    QByteArray packed = qCompress(message, 9);
    if (packed.size() >= message.size())
        packed = message;
    const quint16 checksum = qChecksum(packed.constData(), static_cast<uint>(packed.size()));
    chain(packed);
    return packed.size() + checksum;
}

qint64 bareDecode(const Packed& packed)
{
    // The copy stands for the buffer that the socket hands over.
    QByteArray payload = packed.bytes;
    unchain(payload);
    const quint16 checksum = qChecksum(payload.constData(), static_cast<uint>(payload.size()));
    QXmlStreamReader reader(packed.compressed ? qUncompress(payload) : payload);
    return walk(reader) + checksum;
}

qint64 walk(QXmlStreamReader& reader)
{
    qint64 tokens = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        tokens += reader.name().size() + reader.text().size();
    }
    return tokens;
}

} // namespace Velmora::Bench
