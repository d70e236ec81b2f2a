// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceMessages.h"

#include "monitor/core/DeviceMessageTexts.h"
#include "monitor/core/WorkModes.h"

#include <QCoreApplication>
#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

constexpr const char* warningCodes[] = {"0", "5", "10", "12", "61", "64", "83", "190"};
constexpr const char* noticeCodes[] = {"7",  "8",  "9",  "27", "28", "29", "40",
                                       "44", "48", "59", "72", "98", "99", "201"};

template <std::size_t N>
bool holds(const char* const (&codes)[N], const QString& code)
{
    return std::any_of(std::begin(codes), std::end(codes),
                       [&code](const char* candidate) { return code == QLatin1String(candidate); });
}

QString coloured(const QStringList& texts, const QString& colour)
{
    if (texts.isEmpty())
        return {};
    return QLatin1String("<FONT COLOR=") + colour + QLatin1Char('>') + texts.join(QLatin1String("<br>")) +
           QLatin1String("</FONT>");
}

} // namespace

QString Utils::decodeMessages(const QString& code)
{
    if (code == QLatin1String("no_communication"))
        return QCoreApplication::translate("QObject", "Brak komunikacji");

    const int number = code.toInt();
    if (QString::number(number) == code) {
        const DeviceMessageText text = deviceMessageText(number);
        if (text.source != nullptr)
            return QLatin1String(text.mark) + QCoreApplication::translate("QObject", text.source);
    }
    return QCoreApplication::translate("QObject", "Tryb pracy - ") + decodeWorkMode(code);
}

MessageClass messageClass(const QString& code)
{
    if (holds(warningCodes, code))
        return MessageClass::Warning;
    return holds(noticeCodes, code) ? MessageClass::Notice : MessageClass::Alarm;
}

DeviceMessageBlocks deviceMessageBlocks(const QStringList& codes)
{
    QStringList alarms;
    QStringList warnings;
    QStringList notices;
    for (const QString& code : codes) {
        const QString text = Utils::decodeMessages(code);
        switch (messageClass(code)) {
        case MessageClass::Alarm:
            alarms.append(text);
            break;
        // A code that no table knows comes back as received and must not become markup.
        case MessageClass::Warning:
            warnings.append(text.toHtmlEscaped());
            break;
        case MessageClass::Notice:
            notices.append(text.toHtmlEscaped());
            break;
        }
    }
    return {alarms.join(QLatin1Char('\n')), coloured(warnings, QStringLiteral("orange")),
            coloured(notices, QStringLiteral("#59595B"))};
}

QString noMessagesHtml()
{
    return QCoreApplication::translate("VelmoraWindow", "<FONT COLOR=grey>Brak</FONT>");
}

} // namespace Velmora
