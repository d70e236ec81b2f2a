// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Rules about the computers that a policy acts on, and about their groups.
namespace Velmora {

/// The computer that the service itself runs on, however its address is spelt. Case matters.
[[nodiscard]] bool isLocalAddress(const QString& address, const QString& serviceAddress);

/// All spellings of the service's own computer are shown as one.
[[nodiscard]] QString shownAddress(const QString& address, const QString& serviceAddress);

/// Up to the first colon, which cuts an IPv6 address as well.
[[nodiscard]] QString addressWithoutPort(const QString& address);

/// The group that the service makes by itself; anything that begins like it passes for it.
[[nodiscard]] bool isDefaultGroup(const QString& name);

enum class GroupNameVerdict { Accepted, ForbiddenCharacter, Taken };

[[nodiscard]] GroupNameVerdict checkGroupName(const QString& name, const QStringList& takenNames);

} // namespace Velmora
