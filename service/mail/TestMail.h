// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QDateTime;

namespace Velmora::Service {

/// The mail that the test sends from an address to the same address, with its headers.
[[nodiscard]] QByteArray testMail(const QByteArray& address, const QDateTime& time);

/// A mail as it follows the DATA command: lines end with CR LF, one that starts with a dot gets a second
/// one, and a line of a single dot ends it.
[[nodiscard]] QByteArray dataForm(const QByteArray& mail);

} // namespace Velmora::Service
