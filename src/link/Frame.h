// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Velmora::Utils {

/// Bytes of a frame's size field.
constexpr int frameHeaderSize = 4;

/// The size field that stands in front of `message`, which is a blob: four bytes, most significant first.
[[nodiscard]] QByteArray prepareMessageSize(const QByteArray& message);

/// The size that the first four bytes of `header` announce. The caller guarantees four bytes. A size of 2 GiB
/// or more reads as negative.
[[nodiscard]] int getMessegaSize(const QByteArray& header);

} // namespace Velmora::Utils
