// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Velmora {

/// True if `bytes` surely are UTF-8 that a way through QString gives back unchanged, which then can be
/// spared: no NUL, no byte order mark, nothing invalid. Some rare such texts are not recognised.
[[nodiscard]] bool isPlainText(const QByteArray& bytes);

} // namespace Velmora
