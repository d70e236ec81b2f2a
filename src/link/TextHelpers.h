// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora::Utils {

/// MD5 of the UTF-8 of `text`, 32 lower-case hexadecimal characters: the form in which passwords travel.
[[nodiscard]] QString makeMd5(const QString& text);

/// Replaces the five characters special to XML by their entities, in place, and returns its argument.
QString& replaceXmlSpecialCharacters(QString& text);

} // namespace Velmora::Utils
