// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QXmlStreamReader>

namespace Velmora {

/// A reader over the text that decrypt() gives for `blob`, without the detour through QString where the text
/// allows it. A blob that is not genuine gives a reader of an empty document, which fails on its first token.
[[nodiscard]] QXmlStreamReader readMessageText(const QByteArray& blob);

/// The same over what decryptToUtf8() gave.
[[nodiscard]] QXmlStreamReader readMessageBytes(const QByteArray& bytes);

} // namespace Velmora
