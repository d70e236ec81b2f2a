// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QXmlStreamReader;

/// The steps that the format of messages makes mandatory, each written as plainly as the format states it.
namespace Velmora::Bench {

struct Packed
{
    QByteArray bytes; ///< the payload as it is carried, chained
    bool compressed = false;
};

[[nodiscard]] Packed pack(const QByteArray& message);

/// Compression, checksum and chain. Gives a number that depends on all of it, as the others do.
qint64 bareEncode(const QByteArray& message);
/// Chain, checksum, unpacking and the walk of the XML reader.
qint64 bareDecode(const Packed& packed);
/// The walk of the XML reader alone.
qint64 walk(QXmlStreamReader& reader);

} // namespace Velmora::Bench
