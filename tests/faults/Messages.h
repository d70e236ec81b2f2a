// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

namespace Velmora::Tests {

/// One document of every kind that services send, most of them as the reference service writes them about its
/// built-in site. The policy and the settings of device 2 are among them.
[[nodiscard]] QVector<QByteArray> serviceMessages();

/// One document of every kind that the panel sends, with the administrator's password and about the records
/// in `messages`. Takes the test's own address.
[[nodiscard]] QVector<QByteArray> panelRequests(const QVector<QByteArray>& messages);

} // namespace Velmora::Tests
