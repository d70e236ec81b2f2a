// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/PolicyRecords.h"
#include "link/ServiceSettings.h"

namespace Velmora::Utils {

// Print records to Qt's debug output. Passwords are left out.

void debugGroups(const QVector<Group>& groups);
void debugEvents(const QVector<Event>& events);
void debugAppConfiguration(const ApplicationConfiguration& configuration);

} // namespace Velmora::Utils
