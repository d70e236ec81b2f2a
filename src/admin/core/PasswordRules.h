// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// What stands in the way of a password change, the first reason that applies.
enum class PasswordChangeVerdict { Accepted, WrongOldPassword, EmptyNewPassword, RepeatDiffers };

struct PasswordChangeEntry
{
    QString oldPassword;
    QString newPassword;
    QString repeatedPassword;
};

/// `digest` is the MD5 text of the administrator password that the service holds.
[[nodiscard]] PasswordChangeVerdict checkAdministratorPasswordChange(const PasswordChangeEntry& entry,
                                                                     const QString& digest);

/// The same for a client of the network, which may be left without a password.
[[nodiscard]] PasswordChangeVerdict checkClientPasswordChange(const PasswordChangeEntry& entry,
                                                              const QString& digest);

/// The password that a service is installed with.
[[nodiscard]] QString defaultAdministratorPassword();

} // namespace Velmora
