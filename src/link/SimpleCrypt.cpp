// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/SimpleCrypt.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace Velmora {

namespace {

constexpr char formatVersion = 0x03;
constexpr int headerSize = 2;

constexpr quint8 flagCompressed = 0x01;
constexpr quint8 flagChecksum = 0x02;
constexpr quint8 flagHash = 0x04;

constexpr int randomByteSize = 1;
constexpr int checksumSize = 2;
constexpr int hashSize = 20;
constexpr int compressionLevel = 9;

// The format names qsrand and qrand as the source of its random byte; Qt has replacements for all other uses.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void reseed()
{
    qsrand(static_cast<uint>(QDateTime::currentMSecsSinceEpoch() & 0xFFFF));
}

char randomByte()
{
    return static_cast<char>(qrand() & 0xFF);
}
QT_WARNING_POP

QByteArray checksumField(const char* payload, int size)
{
    QByteArray field(checksumSize, Qt::Uninitialized);
    qToBigEndian(qChecksum(payload, static_cast<uint>(size)), field.data());
    return field;
}

QByteArray hashField(const char* payload, int size)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(payload, size);
    return hash.result();
}

constexpr size_t keyLength = 8;

// A local copy of the key: the compiler then knows that the bytes written do not change it.
std::array<char, keyLength> keyOf(const std::vector<char>& keyParts)
{
    std::array<char, keyLength> key{};
    std::copy_n(keyParts.cbegin(), keyLength, key.begin());
    return key;
}

// Each byte is mixed with its key part and the enciphered byte before it.
void chain(char* bytes, int size, const std::vector<char>& keyParts)
{
    const auto key = keyOf(keyParts);
    char last = 0;
    for (int pos = 0; pos < size; ++pos) {
        last = static_cast<char>(bytes[pos] ^ key[static_cast<size_t>(pos) % keyLength] ^ last);
        bytes[pos] = last;
    }
}

void unchain(char* bytes, int size, const std::vector<char>& keyParts)
{
    const auto key = keyOf(keyParts);
    char last = 0;
    for (int pos = 0; pos < size; ++pos) {
        const char enciphered = bytes[pos];
        bytes[pos] = static_cast<char>(enciphered ^ key[static_cast<size_t>(pos) % keyLength] ^ last);
        last = enciphered;
    }
}

// Moves `payload` behind its integrity field. False if the field is cut short or does not fit the payload.
bool takeIntegrityField(quint8 flags, const char*& payload, int& size)
{
    // The checksum wins when both flags are set.
    const bool checksum = (flags & flagChecksum) != 0;
    if (!checksum && (flags & flagHash) == 0)
        return true;
    const int fieldSize = checksum ? checksumSize : hashSize;
    if (size < fieldSize)
        return false;
    const char* field = payload;
    payload += fieldSize;
    size -= fieldSize;
    if (checksum)
        return qFromBigEndian<quint16>(field) == qChecksum(payload, static_cast<uint>(size));
    return hashField(payload, size) == QByteArray::fromRawData(field, fieldSize);
}

} // namespace

SimpleCrypt::SimpleCrypt()
{
    reseed();
}

SimpleCrypt::SimpleCrypt(unsigned long long key)
    : m_key(key)
{
    reseed();
    splitKey();
}

void SimpleCrypt::setKey(unsigned long long key)
{
    m_key = key;
    splitKey();
}

void SimpleCrypt::splitKey()
{
    m_keyParts.resize(keyLength);
    for (size_t i = 0; i < m_keyParts.size(); ++i)
        m_keyParts[i] = static_cast<char>((m_key >> (8 * i)) & 0xFF);
}

bool SimpleCrypt::hasKey()
{
    if (!m_keyParts.empty())
        return true;
    qWarning() << "No key set.";
    m_lastError = Error::NoKeySet;
    return false;
}

QByteArray SimpleCrypt::integrityField(const char* payload, int size) const
{
    switch (protectionMode) {
    case ProtectionMode::Checksum:
        return checksumField(payload, size);
    case ProtectionMode::Hash:
        return hashField(payload, size);
    case ProtectionMode::None:
        break;
    }
    return {};
}

QByteArray SimpleCrypt::encryptToByteArray(QByteArray plain)
{
    if (!hasKey())
        return {};

    quint8 flags = 0;
    if (compressionMode != CompressionMode::Never) {
        QByteArray compressed = qCompress(plain, compressionLevel);
        if (compressionMode == CompressionMode::Always || compressed.size() < plain.size()) {
            plain = std::move(compressed);
            flags |= flagCompressed;
        }
    }
    if (protectionMode == ProtectionMode::Checksum)
        flags |= flagChecksum;
    else if (protectionMode == ProtectionMode::Hash)
        flags |= flagHash;

    const QByteArray integrity = integrityField(plain.constData(), plain.size());
    QByteArray blob;
    blob.reserve(headerSize + randomByteSize + integrity.size() + plain.size());
    blob.append(formatVersion).append(static_cast<char>(flags)).append(randomByte());
    blob.append(integrity).append(plain);
    chain(blob.data() + headerSize, blob.size() - headerSize, m_keyParts);
    m_lastError = Error::NoError;
    return blob;
}

QByteArray SimpleCrypt::encryptToByteArray(const QString& plain)
{
    return encryptToByteArray(plain.toUtf8());
}

QString SimpleCrypt::encryptToString(QByteArray plain)
{
    return QString::fromLatin1(encryptToByteArray(std::move(plain)).toBase64());
}

QString SimpleCrypt::encryptToString(const QString& plain)
{
    return encryptToString(plain.toUtf8());
}

QByteArray SimpleCrypt::decryptToByteArray(QByteArray cypher, int largest)
{
    if (!hasKey())
        return {};
    // A byte beyond the end reads as NUL.
    if (cypher.isEmpty() || cypher.at(0) != formatVersion) {
        qWarning() << "Invalid version or not a cyphertext.";
        m_lastError = Error::UnknownVersion;
        return {};
    }
    const auto flags = static_cast<quint8>(cypher.size() > 1 ? cypher.at(1) : 0);
    m_lastError = Error::NoError;
    if (cypher.size() <= headerSize + randomByteSize) {
        if ((flags & (flagChecksum | flagHash)) != 0)
            m_lastError = Error::IntegrityFailed;
        return {};
    }

    unchain(cypher.data() + headerSize, cypher.size() - headerSize, m_keyParts);
    const char* payload = cypher.constData() + headerSize + randomByteSize;
    int size = cypher.size() - headerSize - randomByteSize;

    if (!takeIntegrityField(flags, payload, size)) {
        m_lastError = Error::IntegrityFailed;
        return {};
    }
    if ((flags & flagCompressed) != 0)
        return unpack(payload, size, largest);
    return {payload, size};
}

QByteArray SimpleCrypt::decryptToByteArray(const QString& cypher)
{
    return decryptToByteArray(QByteArray::fromBase64(cypher.toLatin1()));
}

QString SimpleCrypt::decryptToString(QByteArray cypher)
{
    return QString::fromUtf8(decryptToByteArray(std::move(cypher)));
}

QString SimpleCrypt::decryptToString(const QString& cypher)
{
    return QString::fromUtf8(decryptToByteArray(cypher));
}

} // namespace Velmora
