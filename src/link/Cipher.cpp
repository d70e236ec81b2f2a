// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Cipher.h"

#include "link/LinkKeys.h"
#include "link/PlainText.h"
#include "link/SimpleCrypt.h"

namespace Velmora {

QByteArray encrypt(const QByteArray& message)
{
    SimpleCrypt crypt(messageKey);
    if (isPlainText(message))
        return crypt.encryptToByteArray(message);
    // Through QString on purpose: what is not UTF-8 reaches the wire as replacement characters.
    const auto length = qstrnlen(message.constData(), static_cast<uint>(message.size()));
    return crypt.encryptToByteArray(QString::fromUtf8(message.constData(), static_cast<int>(length)));
}

QString decrypt(const QByteArray& blob)
{
    return SimpleCrypt(messageKey).decryptToString(blob);
}

QByteArray decryptToUtf8(const QByteArray& blob, int largest)
{
    return SimpleCrypt(messageKey).decryptToByteArray(blob, largest);
}

QString encryptPass(const QString& password)
{
    return SimpleCrypt(passwordKey).encryptToString(password);
}

QString decryptPass(const QString& text)
{
    return SimpleCrypt(passwordKey).decryptToString(text);
}

} // namespace Velmora
