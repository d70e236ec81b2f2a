// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DebugOutput.h"

#include <QDebug>

namespace Velmora::Utils {

void debugGroups(const QVector<Group>& groups)
{
    for (const Group& group : groups)
        qDebug() << "group" << group.id << group.name << "computers" << group.computers;
}

void debugEvents(const QVector<Event>& events)
{
    for (const Event& event : events) {
        qDebug() << "event" << event.number << "parent" << event.parentId << event.getState()
                 << event.expressionIn << event.expressionOut << "message" << bool(event.messageAction)
                 << "command" << bool(event.sysCommandAction) << "power off" << bool(event.powerOffAction)
                 << "mail" << bool(event.sendMailAction) << "sockets" << bool(event.outputSocketAction);
    }
}

void debugAppConfiguration(const ApplicationConfiguration& configuration)
{
    qDebug() << "mail" << configuration.security_type << configuration.server << configuration.port
             << configuration.timeout << configuration.sender_address << configuration.authentication
             << configuration.user << "logs" << configuration.log_files_path << "run on boot"
             << configuration.run_on_boot;
}

} // namespace Velmora::Utils
