// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/mail/TestMail.h"

#include <QDateTime>
#include <QUuid>

namespace Velmora::Service {

QByteArray testMail(const QByteArray& address, const QDateTime& time)
{
    const QByteArray domain = address.mid(address.lastIndexOf('@') + 1);
    const QByteArray id = QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' + domain;
    return QByteArrayList{
        "From: Velmora <" + address + '>',
        "To: <" + address + '>',
        "Subject: Velmora test mail",
        "Date: " + time.toString(Qt::RFC2822Date).toLatin1(),
        "Message-ID: <" + id + '>',
        "MIME-Version: 1.0",
        "Content-Type: text/plain; charset=utf-8",
        "Content-Transfer-Encoding: 7bit",
        "Auto-Submitted: auto-generated",
        "",
        "This mail tests the mail account of the Velmora service. Nothing has happened to any",
        "device, and there is nothing to do.",
        ""}
        .join('\n');
}

QByteArray dataForm(const QByteArray& mail)
{
    QByteArray data;
    QByteArray lines = mail;
    lines.replace("\r\n", "\n");
    if (lines.endsWith('\n'))
        lines.chop(1);
    for (const QByteArray& line : lines.split('\n'))
        data += (line.startsWith('.') ? "." : "") + line + "\r\n";
    return data + ".\r\n";
}

} // namespace Velmora::Service
