// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Velmora {

/// Name of an entry of a device's event history. The code is read as a decimal number, so "07" is 7 and what
/// is no number is 0; "----" for a code without a name. Event codes and message codes are unrelated
/// numberings.
[[nodiscard]] QString eventCodeName(const QString& code);

/// One line per event, in the order of the service, from records "code;date;date;hour;minute;second" that are
/// joined by "|". A record with another number of fields is left out.
[[nodiscard]] QStringList formatEventHistory(const QString& events);

} // namespace Velmora
