// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/RequestDispatcher.h"

#include <algorithm>

namespace Velmora::Service {

namespace {

struct ActionField
{
    const char* action;
    const char* field;
};

// A panel takes any value for a number that an action lacks, so what is sent to it has all of them.
constexpr ActionField actionNumbers[] = {
    {"syscommand_action", "stanbyUps"},         {"syscommand_action", "delay_time"},
    {"poweroff_action", "stanbyUps"},           {"poweroff_action", "delay_time"},
    {"output_sock_action", "first_sock_conf"},  {"output_sock_action", "first_sock_ena"},
    {"output_sock_action", "first_sock_delay"}, {"output_sock_action", "second_sock_conf"},
    {"output_sock_action", "second_sock_ena"},  {"output_sock_action", "second_sock_delay"},
};

void completeActions(Element& event)
{
    Element* actions = event.child(QLatin1String("actions"));
    if (!actions)
        return;
    for (const ActionField& number : actionNumbers) {
        Element* action = actions->child(QLatin1String(number.action));
        if (action && !action->child(QLatin1String(number.field)))
            action->add(QLatin1String(number.field), QStringLiteral("0"));
    }
}

QVector<Element> childrenNamed(const Element& request, QLatin1String name)
{
    QVector<Element> children;
    for (const Element& child : request.children) {
        if (child.name == name)
            children.append(child);
    }
    return children;
}

bool fits(const RequestScope& scope, QLatin1String list, const QVector<Element>& elements)
{
    if (!encodeFrame(elementsReply(list, elements)).isEmpty())
        return true;
    scope.refuse(QStringLiteral("The list \"%1\" was not saved: it is longer than a panel could read back.")
                     .arg(list));
    return false;
}

// Passwords of computers are for administrators only.
QVector<Element> computersFor(const RequestScope& scope)
{
    QVector<Element> computers = scope.store().data().computers;
    if (scope.isAdministrator())
        return computers;
    for (Element& computer : computers) {
        if (Element* password = computer.child(QLatin1String("computer_password")))
            password->text.clear();
    }
    return computers;
}

void sendPolicy(const RequestScope& scope, const Element& request)
{
    const Policy policy = scope.store().data().policies.value(request.childId(QLatin1String("id")));
    scope.reply(elementsReply(QLatin1String("groups"), policy.groups));
    scope.reply(elementsReply(QLatin1String("events"), policy.events));
    scope.reply(elementsReply(QLatin1String("all_computers"), computersFor(scope)));
}

// The device whose policy is sent; noDevice and a refusal if it is gone.
int policyDevice(const RequestScope& scope, const Element& request)
{
    const int id = request.childId(QLatin1String("ups_id"));
    if (scope.store().data().policies.contains(id))
        return id;
    scope.refuse(QStringLiteral("The policy was not saved: there is no such device any more."));
    return noDevice;
}

void saveGroups(const RequestScope& scope, const Element& request)
{
    const int device = policyDevice(scope, request);
    const QVector<Element> groups = childrenNamed(request, QLatin1String("group"));
    if (device == noDevice || !fits(scope, QLatin1String("groups"), groups))
        return;
    static_cast<void>(scope.change([&](StoredData& changed) { changed.policies[device].groups = groups; }));
}

void saveEvents(const RequestScope& scope, const Element& request)
{
    const int device = policyDevice(scope, request);
    QVector<Element> events = childrenNamed(request, QLatin1String("event"));
    for (Element& event : events)
        completeActions(event);
    if (device == noDevice || !fits(scope, QLatin1String("events"), events))
        return;
    static_cast<void>(scope.change([&](StoredData& changed) { changed.policies[device].events = events; }));
}

void saveComputers(const RequestScope& scope, const Element& request)
{
    const QVector<Element> computers = childrenNamed(request, QLatin1String("computer"));
    if (!fits(scope, QLatin1String("all_computers"), computers))
        return;
    static_cast<void>(scope.change([&](StoredData& changed) { changed.computers = computers; }));
}

void removeWithId(QVector<Element>& computers, int id)
{
    const auto hasId = [id](const Element& computer) {
        bool valid = false;
        return computer.childText(QLatin1String("computer_configId")).toInt(&valid) == id && valid;
    };
    computers.erase(std::remove_if(computers.begin(), computers.end(), hasId), computers.end());
}

void removeComputer(const RequestScope& scope, const Element& request)
{
    bool valid = false;
    const int id = request.childText(QLatin1String("id")).toInt(&valid);
    if (!valid) {
        scope.refuse(QStringLiteral("There is no such computer."));
        return;
    }
    static_cast<void>(scope.change([id](StoredData& changed) {
        removeWithId(changed.computers, id);
        for (Policy& policy : changed.policies) {
            for (Element& group : policy.groups) {
                if (Element* members = group.child(QLatin1String("computers")))
                    removeWithId(members->children, id);
            }
        }
    }));
}

} // namespace

QVector<RequestEntry> policyRequests()
{
    return {
        {"get_network_configuration", Access::Watch, sendPolicy},
        {"groups", Access::Change, saveGroups},
        {"events", Access::Change, saveEvents},
        {"all_computers", Access::Change, saveComputers},
        {"remove_computer", Access::Change, removeComputer},
    };
}

} // namespace Velmora::Service
