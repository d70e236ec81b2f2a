// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/SmtpFormRules.h"

namespace Velmora {

SmtpFormFaults checkSmtpForm(const SmtpFormEntry& entry, bool allowEmpty)
{
    const bool blank = entry.server.isEmpty() && entry.port.text.isEmpty() &&
                       entry.senderAddress.text.isEmpty() && entry.timeout.text.isEmpty();
    if (blank && allowEmpty)
        return {};
    return {entry.server.isEmpty(), !entry.port.acceptable, !entry.senderAddress.acceptable,
            !entry.timeout.acceptable};
}

bool isBlankMailAccount(const Utils::SmtpConfig& config)
{
    return config.server.isEmpty() && config.sender_address.isEmpty() && config.port == 0 &&
           config.timeout == 0;
}

QString senderAddressPattern()
{
    return QStringLiteral(R"re(^[\w!#$%&'*+/=?`{|}~^-]+(?:\.[\w!#$%&'*+/=?`{|}~^-]+)*@)re"
                          R"re((?:[a-zA-Z0-9-]+\.)+[a-zA-Z]{2,6}$)re");
}

int encryptionId(const QString& name)
{
    if (name.compare(QLatin1String(encryptionNameNone), Qt::CaseInsensitive) == 0)
        return encryptionIdNone;
    if (name.compare(QLatin1String(encryptionNameSsl), Qt::CaseInsensitive) == 0)
        return encryptionIdSsl;
    return encryptionIdTls;
}

QString encryptionName(int id)
{
    if (id == encryptionIdNone)
        return QLatin1String(encryptionNameNone);
    return QLatin1String(id == encryptionIdSsl ? encryptionNameSsl : encryptionNameTls);
}

} // namespace Velmora
