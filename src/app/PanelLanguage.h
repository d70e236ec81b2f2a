// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// Locale for the translators from the word of the ini file; the system's for a word that means nothing here.
[[nodiscard]] QString panelLocaleName(const QString& language);

} // namespace Velmora
