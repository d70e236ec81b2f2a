// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/Frame.h"
#include "link/LinkKeys.h"
#include "link/SimpleCrypt.h"
#include "link/UpsSocketController.h"

#include <QBuffer>

namespace Velmora::Tests {

/// Gives the link these bytes as if the service had sent them. False if it dropped the connection over them.
inline bool feed(UpsSocketController& link, QByteArray frames)
{
    QBuffer source(&frames);
    source.open(QIODevice::ReadOnly);
    return link.readMessages(source);
}

/// One frame with the payload as it stands.
inline QByteArray frame(const QByteArray& payload)
{
    SimpleCrypt crypt(messageKey);
    crypt.compressionMode = SimpleCrypt::CompressionMode::Never;
    const QByteArray blob = crypt.encryptToByteArray(payload);
    return Utils::prepareMessageSize(blob) + blob;
}

} // namespace Velmora::Tests
