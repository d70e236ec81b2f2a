// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/PasswordRules.h"

#include "link/TextHelpers.h"

namespace Velmora {

PasswordChangeVerdict checkAdministratorPasswordChange(const PasswordChangeEntry& entry,
                                                       const QString& digest)
{
    if (Utils::makeMd5(entry.oldPassword) != digest)
        return PasswordChangeVerdict::WrongOldPassword;
    if (entry.newPassword.isEmpty())
        return PasswordChangeVerdict::EmptyNewPassword;
    return checkClientPasswordChange(entry, digest);
}

PasswordChangeVerdict checkClientPasswordChange(const PasswordChangeEntry& entry, const QString& digest)
{
    if (Utils::makeMd5(entry.oldPassword) != digest)
        return PasswordChangeVerdict::WrongOldPassword;
    if (entry.newPassword != entry.repeatedPassword)
        return PasswordChangeVerdict::RepeatDiffers;
    return PasswordChangeVerdict::Accepted;
}

QString defaultAdministratorPassword()
{
    return QStringLiteral("Opiekunsystem");
}

} // namespace Velmora
