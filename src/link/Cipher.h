// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/Unpack.h"

#include <QByteArray>
#include <QString>

namespace Velmora {

/// The blob of one message. `message` is UTF-8 text and ends at its first NUL.
[[nodiscard]] QByteArray encrypt(const QByteArray& message);

/// The text of one message; empty if the blob is not whole and genuine.
[[nodiscard]] QString decrypt(const QByteArray& blob);

/// The bytes of that text as they were carried, unchecked; empty for the same blobs and for what would unpack
/// to more than `largest` bytes.
[[nodiscard]] QByteArray decryptToUtf8(const QByteArray& blob, int largest = maximumUnpackedSize);

/// Base64 text of the enciphered password.
[[nodiscard]] QString encryptPass(const QString& password);

/// The password; empty if `text` was not made by encryptPass.
[[nodiscard]] QString decryptPass(const QString& text);

} // namespace Velmora
