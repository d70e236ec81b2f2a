// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Unpack.h"

#include <QtEndian>

#include <zlib.h>

namespace Velmora {

namespace {

constexpr int lengthSize = 4;

// zlib packs no more than 1032 bytes into one; an honest announcement stays below this.
qint64 largestHonestSize(int packedSize)
{
    return 1032 * static_cast<qint64>(packedSize) + 64;
}

class InflateStream final
{
public:
    InflateStream(const char* data, int size)
    {
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data));
        m_stream.avail_in = static_cast<uInt>(size);
        m_ready = inflateInit(&m_stream) == Z_OK;
    }
    ~InflateStream()
    {
        if (m_ready)
            inflateEnd(&m_stream);
    }
    Q_DISABLE_COPY_MOVE(InflateStream)

    // Fills `out` from `used` to its end and returns zlib's status.
    int fill(QByteArray& out, int used)
    {
        if (!m_ready)
            return Z_STREAM_ERROR;
        m_stream.next_out = reinterpret_cast<Bytef*>(out.data() + used);
        m_stream.avail_out = static_cast<uInt>(out.size() - used);
        return inflate(&m_stream, Z_SYNC_FLUSH);
    }
    [[nodiscard]] int freeSpace() const { return static_cast<int>(m_stream.avail_out); }

private:
    z_stream m_stream = {};
    bool m_ready = false;
};

} // namespace

QByteArray unpack(const char* data, int size, int largest)
{
    if (size <= lengthSize)
        return {};
    const qint64 announced = qFromBigEndian<quint32>(data);
    if (announced > largest)
        return {};

    InflateStream stream(data + lengthSize, size - lengthSize);
    QByteArray unpacked(static_cast<int>(qBound<qint64>(1, announced, largestHonestSize(size))),
                        Qt::Uninitialized);
    int used = 0;
    while (true) {
        const int status = stream.fill(unpacked, used);
        used = unpacked.size() - stream.freeSpace();
        if (status == Z_STREAM_END)
            break;
        // A full buffer means that the announced length was too small; anything else is a broken stream.
        const bool bufferFull = stream.freeSpace() == 0 && (status == Z_OK || status == Z_BUF_ERROR);
        if (!bufferFull || unpacked.size() >= largest)
            return {};
        unpacked.resize(qMin(2 * unpacked.size(), largest));
    }
    unpacked.resize(used);
    return unpacked;
}

} // namespace Velmora
