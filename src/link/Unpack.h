// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Velmora {

/// Largest unpacked payload that a panel accepts, in bytes.
constexpr int maximumUnpackedSize = 64 * 1024 * 1024;

/// What qUncompress gives for data made by qCompress (four big-endian bytes of unpacked length, then a zlib
/// stream), bounded: memory follows the data that really arrived, never the announced length alone.
/// Empty for a broken stream and for more than `largest` bytes.
[[nodiscard]] QByteArray unpack(const char* data, int size, int largest);

} // namespace Velmora
