// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/PolicyActions.h"

#include <algorithm>

namespace Velmora::Service {

namespace {

constexpr int longestDelay = 999900; ///< seconds; as much as panels offer

int seconds(const Element& action, QLatin1String field)
{
    return qBound(0, action.childText(field).toInt(), longestDelay);
}

bool flag(const Element& action, QLatin1String field)
{
    return action.childText(field).toInt() != 0;
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') % text % QLatin1Char('"');
}

// Text of an action that computers carry out, after which the UPS may be switched off.
QString onComputers(const QString& text, const QString& group, const Element& action)
{
    return text % QLatin1String(" on ") % group %
           QLatin1String(flag(action, QLatin1String("stanbyUps")) ? "" : " and the UPS off afterwards");
}

PolicyAction message(const Element& action, const QString& group)
{
    return {QStringLiteral("message"), 0,
            quoted(action.childText(QLatin1String("message_text"))) % QLatin1String(" on ") % group};
}

PolicyAction command(const Element& action, const QString& group)
{
    const QString line = action.childText(QLatin1String("command_line")) % QLatin1Char(' ') %
                         action.childText(QLatin1String("command_options"));
    return {QStringLiteral("command"), seconds(action, QLatin1String("delay_time")),
            onComputers(quoted(line.trimmed()), group, action)};
}

PolicyAction powerOff(const Element& action, const QString& group)
{
    return {QStringLiteral("power_off"), seconds(action, QLatin1String("delay_time")),
            onComputers(action.childText(QLatin1String("type")), group, action)};
}

PolicyAction mail(const Element& action)
{
    return {QStringLiteral("email"), 0,
            quoted(action.childText(QLatin1String("subject"))) % QLatin1String(" to ") %
                action.childText(QLatin1String("receipent"))};
}

void addSocket(QVector<PolicyAction>& actions, const Element& action, int number, QLatin1String configured,
               QLatin1String enabled, QLatin1String delay)
{
    if (flag(action, configured))
        actions.append({QStringLiteral("output_socket %1").arg(number), seconds(action, delay),
                        flag(action, enabled) ? QStringLiteral("on") : QStringLiteral("off")});
}

} // namespace

QVector<PolicyAction> actionsOf(const Element& event, const QString& group)
{
    QVector<PolicyAction> actions;
    const Element* all = event.child(QLatin1String("actions"));
    if (!all)
        return actions;
    if (const Element* action = all->child(QLatin1String("message_action")))
        actions.append(message(*action, group));
    if (const Element* action = all->child(QLatin1String("sendmail_action")))
        actions.append(mail(*action));
    if (const Element* action = all->child(QLatin1String("syscommand_action")))
        actions.append(command(*action, group));
    if (const Element* action = all->child(QLatin1String("output_sock_action"))) {
        addSocket(actions, *action, 1, QLatin1String("first_sock_conf"), QLatin1String("first_sock_ena"),
                  QLatin1String("first_sock_delay"));
        addSocket(actions, *action, 2, QLatin1String("second_sock_conf"), QLatin1String("second_sock_ena"),
                  QLatin1String("second_sock_delay"));
    }
    if (const Element* action = all->child(QLatin1String("poweroff_action")))
        actions.append(powerOff(*action, group));
    std::stable_sort(actions.begin(), actions.end(), [](const PolicyAction& left, const PolicyAction& right) {
        return left.delay < right.delay;
    });
    return actions;
}

} // namespace Velmora::Service
