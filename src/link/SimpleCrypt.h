// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/Unpack.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Velmora {

/// Keyed XOR chain with optional compression and integrity field: protects against casual reading only.
///
/// A blob is the byte 0x03, a flags byte and the chained bytes; the chain hides one random byte, the
/// integrity field and the payload. The integrity field covers the payload as it is carried, after
/// compression.
class SimpleCrypt final
{
public:
    enum class CompressionMode { Automatic, Always, Never };
    enum class ProtectionMode { None, Checksum, Hash };
    enum class Error { NoError, NoKeySet, UnknownVersion, IntegrityFailed };

    /// Without a key every operation fails with Error::NoKeySet until setKey.
    SimpleCrypt();
    explicit SimpleCrypt(unsigned long long key);

    /// Zero is a key like any other.
    void setKey(unsigned long long key);

    [[nodiscard]] Error lastError() const { return m_lastError; }

    /// The blob; empty on failure, see lastError().
    [[nodiscard]] QByteArray encryptToByteArray(QByteArray plain);
    [[nodiscard]] QByteArray encryptToByteArray(const QString& plain);
    /// The blob as Base64 text.
    [[nodiscard]] QString encryptToString(QByteArray plain);
    [[nodiscard]] QString encryptToString(const QString& plain);

    /// The payload; empty on failure, see lastError(). A payload that would unpack to more than `largest`
    /// bytes is empty too, with Error::NoError, like any payload that cannot be unpacked.
    [[nodiscard]] QByteArray decryptToByteArray(QByteArray cypher, int largest = maximumUnpackedSize);
    /// `cypher` is the Base64 text of a blob.
    [[nodiscard]] QByteArray decryptToByteArray(const QString& cypher);
    [[nodiscard]] QString decryptToString(QByteArray cypher);
    [[nodiscard]] QString decryptToString(const QString& cypher);

    CompressionMode compressionMode = CompressionMode::Automatic;
    ProtectionMode protectionMode = ProtectionMode::Checksum;

private:
    void splitKey();
    [[nodiscard]] bool hasKey();
    [[nodiscard]] QByteArray integrityField(const char* payload, int size) const;

    unsigned long long m_key = 0;
    std::vector<char> m_keyParts; ///< least significant byte first; empty until a key was set
    Error m_lastError = Error::NoError;
};

} // namespace Velmora
