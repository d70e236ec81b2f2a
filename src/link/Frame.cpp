// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Frame.h"

#include <QtEndian>

namespace Velmora::Utils {

QByteArray prepareMessageSize(const QByteArray& message)
{
    QByteArray header(frameHeaderSize, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(message.size()), header.data());
    return header;
}

int getMessegaSize(const QByteArray& header)
{
    return static_cast<int>(qFromBigEndian<quint32>(header.constData()));
}

} // namespace Velmora::Utils
