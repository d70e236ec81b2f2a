// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

namespace Velmora {

// Only icons look for the double-size twin of a picture by themselves.

/// The picture in this file or its twin, in the pixels that the screens have. Null if there is none.
[[nodiscard]] QPixmap picture(const QString& path);

/// The file of an animation that fits the screens: `path` or its twin.
[[nodiscard]] QString animationFile(const QString& path);

} // namespace Velmora
