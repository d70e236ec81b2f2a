// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QXmlStreamReader>

namespace Velmora {

/// A reader over what decryptToUtf8() gave, which reads what it would of the text that decrypt() gives,
/// without the detour through QString where the bytes allow it. No bytes give a reader that fails on its
/// first token.
[[nodiscard]] QXmlStreamReader readMessageBytes(const QByteArray& bytes);

} // namespace Velmora
