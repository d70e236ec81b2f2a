// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// Translated caption and unit of a logged value; the key itself if it is not known.
[[nodiscard]] QString logColumnCaption(const QString& key);

} // namespace Velmora
