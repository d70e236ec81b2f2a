// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// Whether nothing but blanks stands in `text`. Any other text is taken as an address, as it stands.
[[nodiscard]] bool isBlankServiceAddress(const QString& text);

} // namespace Velmora
