// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/wire/Element.h"

namespace Velmora::Service {

/// One thing that an event of the policy wants done.
struct PolicyAction
{
    QString name;    ///< "message", "command", "power_off", "email", "output_socket 1" or "output_socket 2"
    int delay = 0;   ///< seconds from the beginning of the event
    QString details; ///< what is done to whom, in words
};

/// The actions of an event, the earliest first; elements that are no action of ours are left out. The group
/// is the name of the computers that the event concerns.
[[nodiscard]] QVector<PolicyAction> actionsOf(const Element& event, const QString& group);

} // namespace Velmora::Service
