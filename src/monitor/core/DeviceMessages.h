// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Velmora {

namespace Utils {

/// Text for a message code, compared exactly ("07" is not "7"). Devices mix work modes into their messages,
/// so what is no message code is taken for a work mode.
[[nodiscard]] QString decodeMessages(const QString& code);

} // namespace Utils

enum class MessageClass { Alarm, Warning, Notice };

/// Every code that is neither a known warning nor a known notice is an alarm.
[[nodiscard]] MessageClass messageClass(const QString& code);

/// The message box's three blocks, each in the order received; a block without messages is empty.
struct DeviceMessageBlocks
{
    QString alarms;       ///< plain text, one alarm a line
    QString warningsHtml; ///< orange, with line breaks between
    QString noticesHtml;  ///< grey, with line breaks between
};

[[nodiscard]] DeviceMessageBlocks deviceMessageBlocks(const QStringList& codes);

/// What stands in the message box when the device reports no messages at all.
[[nodiscard]] QString noMessagesHtml();

} // namespace Velmora
