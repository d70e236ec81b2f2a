// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/PolicyModel.h"

#include "devices/core/ModelRules.h"
#include "link/FreeId.h"
#include "policy/core/NetworkRules.h"
#include "policy/core/WorkModeTable.h"

#include <algorithm>
#include <limits>

namespace Velmora {

namespace {

constexpr int expressionParts = 3; // name, start condition, end condition

/// The first record with this id, null if there is none.
template <typename Records>
auto* find(Records& records, int id)
{
    const auto found =
        std::find_if(records.begin(), records.end(), [id](const auto& record) { return record.id == id; });
    return found == records.end() ? nullptr : &*found;
}

template <typename Record>
void removeWithId(QVector<Record>& records, int id)
{
    if (const Record* record = find(records, id))
        records.remove(static_cast<int>(record - records.constData()));
}

template <typename Record>
QVector<int> idsOf(const QVector<Record>& records)
{
    QVector<int> ids;
    for (const Record& record : records)
        ids.append(record.id);
    return ids;
}

// Nothing that comes later than the shutdown is carried out any more.
EventVerdict checkDelays(const Event& event)
{
    if (!event.powerOffAction)
        return EventVerdict::Accepted;
    const int limit = event.powerOffAction->delay_time;
    if (event.sysCommandAction && event.sysCommandAction->delay_time >= limit)
        return EventVerdict::CommandNotBeforeShutdown;
    const OutputSocketControlAction* sockets = event.outputSocketAction.get();
    if (sockets && ((sockets->first_sock_conf && sockets->first_sock_delay >= limit) ||
                    (sockets->second_sock_conf && sockets->second_sock_delay >= limit)))
        return EventVerdict::SocketNotBeforeShutdown;
    return EventVerdict::Accepted;
}

} // namespace

PolicyModel::PolicyModel(const Utils::Ups& device)
    : ups(device)
    , m_advanced(hasAdvancedEventOptions(device.model_name))
{}

void PolicyModel::setEvents(const QVector<Event>& events)
{
    std::optional<Event> edited;
    if (isEditing())
        edited = allEvents.at(m_editedIndex);
    allEvents = events;
    m_eventsHere = true;
    if (edited)
        carryOver(*edited);
}

void PolicyModel::carryOver(Event edited)
{
    m_editedIndex = m_isNewEvent ? -1 : getEventId(edited);
    if (m_editedIndex >= 0) {
        allEvents[m_editedIndex] = edited;
        return;
    }
    if (m_isNewEvent)
        edited.number = nextEventNumber();
    m_editedIndex = allEvents.size();
    allEvents.append(edited);
}

void PolicyModel::setGroups(const QVector<Group>& groups)
{
    m_groups = groups;
    m_groupsHere = true;
}

void PolicyModel::setComputers(const QVector<Computer>& computers)
{
    allComputers = computers;
    m_computersHere = true;
}

QVector<Event> PolicyModel::eventsOfGroup(int groupId) const
{
    QVector<Event> events;
    std::copy_if(allEvents.cbegin(), allEvents.cend(), std::back_inserter(events),
                 [groupId](const Event& event) { return event.parentId == groupId; });
    return events;
}

int PolicyModel::getMaxEventNumber() const
{
    const auto highest =
        std::max_element(allEvents.cbegin(), allEvents.cend(),
                         [](const Event& left, const Event& right) { return left.number < right.number; });
    return highest == allEvents.cend() ? 0 : highest->number;
}

int PolicyModel::nextEventNumber() const
{
    const int highest = getMaxEventNumber();
    if (highest < std::numeric_limits<int>::max())
        return highest + 1;
    QVector<int> numbers;
    for (const Event& event : allEvents)
        numbers.append(event.number);
    return Utils::getFreeId(numbers);
}

int PolicyModel::getEventId(int parentId, int number) const
{
    for (int i = 0; i < allEvents.size(); ++i) {
        if (allEvents.at(i).parentId == parentId && allEvents.at(i).number == number)
            return i;
    }
    return -1;
}

int PolicyModel::getEventId(const Event& event) const
{
    return getEventId(event.parentId, event.number);
}

void PolicyModel::removeEvent(const Event& event)
{
    const int index = getEventId(event);
    if (index >= 0)
        allEvents.remove(index);
}

void PolicyModel::addEvent()
{
    Event event;
    event.number = nextEventNumber();
    m_editedIndex = allEvents.size();
    m_isNewEvent = true;
    allEvents.append(event);
}

bool PolicyModel::editEvent(const Event& event)
{
    m_editedIndex = getEventId(event);
    m_isNewEvent = false;
    return isEditing();
}

Event* PolicyModel::editedEvent()
{
    return isEditing() ? &allEvents[m_editedIndex] : nullptr;
}

bool PolicyModel::isDuplicate(const QString& key, int groupId) const
{
    for (int i = 0; i < allEvents.size(); ++i) {
        const Event& event = allEvents.at(i);
        if (i != m_editedIndex && event.state == key && (m_advanced || event.parentId == groupId))
            return true;
    }
    return false;
}

void PolicyModel::takeActions(Event& event, const EventEntry& entry) const
{
    if (!entry.showMessage) {
        event.messageAction.reset();
    } else {
        if (!event.messageAction)
            event.messageAction = std::make_shared<MessageAction>();
        event.messageAction->message = entry.message;
    }
    if (!entry.systemCommand)
        event.sysCommandAction.reset();
    if (!entry.sendEmail)
        event.sendMailAction.reset();
    if (!entry.shutdownSystem)
        event.powerOffAction.reset();
    if (!entry.outputSocket)
        event.outputSocketAction.reset();
}

EventVerdict PolicyModel::missingParameters(const Event& event, const EventEntry& entry) const
{
    if (entry.shutdownSystem && !event.powerOffAction)
        return EventVerdict::NoShutdownParameters;
    if (entry.systemCommand && !event.sysCommandAction)
        return EventVerdict::NoCommandParameters;
    if (entry.sendEmail && !event.sendMailAction)
        return EventVerdict::NoEmailParameters;
    if (hasOutputSockets() && entry.outputSocket && !event.outputSocketAction)
        return EventVerdict::NoSocketParameters;
    return EventVerdict::Accepted;
}

EventVerdict PolicyModel::saveEvent(const EventEntry& entry)
{
    Event* event = editedEvent();
    if (!event)
        return EventVerdict::NothingEdited;
    const int groupId = entry.groupId.value_or(event->parentId);
    const QString key = entry.key.value_or(event->state);
    if (isDuplicate(key, groupId))
        return EventVerdict::Duplicate;
    if (!m_advanced && entry.key) {
        const WorkMode mode = workMode(ups.model_name, key);
        event->state = key;
        event->expressionIn = mode.expressionIn;
        event->expressionOut = mode.expressionOut;
    }
    takeActions(*event, entry);
    EventVerdict verdict = missingParameters(*event, entry);
    if (verdict == EventVerdict::Accepted)
        verdict = checkDelays(*event);
    if (verdict != EventVerdict::Accepted)
        return verdict;
    event->parentId = groupId;
    closeEditor();
    return EventVerdict::Accepted;
}

void PolicyModel::cancelEvent()
{
    if (!isEditing())
        return;
    if (m_isNewEvent)
        allEvents.remove(m_editedIndex);
    else if (m_advanced)
        storeExpressions(previousExpressions);
    closeEditor();
}

void PolicyModel::closeEditor()
{
    m_editedIndex = -1;
    m_isNewEvent = false;
    previousExpressions.clear();
}

QStringList PolicyModel::expressionsToEdit(const QString& chosenName, const QString& namePrefix)
{
    QStringList expressions;
    int next = 1;
    // One pass: a number that stands before its predecessor is proposed again, and refused by the editor.
    for (const Event& event : qAsConst(allEvents)) {
        if (event.state == chosenName)
            expressions << event.state << event.expressionIn << event.expressionOut;
        if (event.state == namePrefix + QString::number(next))
            ++next;
    }
    previousExpressions = expressions;
    if (m_isNewEvent) {
        const QString name = namePrefix + QString::number(next);
        if (expressions.size() > 1)
            expressions[0] = name;
        else
            expressions.append(name);
    }
    return expressions;
}

void PolicyModel::storeExpressions(const QStringList& expressions)
{
    Event* event = editedEvent();
    if (!event || expressions.size() != expressionParts)
        return;
    event->state = expressions.at(0);
    event->expressionIn = expressions.at(1);
    event->expressionOut = expressions.at(2);
}

const Computer* PolicyModel::getComputerFromList(int id) const
{
    return find(allComputers, id);
}

const Group* PolicyModel::group(int id) const
{
    return find(m_groups, id);
}

QStringList PolicyModel::groupNames() const
{
    QStringList names;
    for (const Group& group : m_groups)
        names.append(group.name);
    return names;
}

bool PolicyModel::groupHoldsLocalComputer(int groupId, const QString& serviceAddress) const
{
    const Group* members = group(groupId);
    if (!members)
        return false;
    return std::any_of(members->computers.cbegin(), members->computers.cend(), [&](int id) {
        const Computer* computer = getComputerFromList(id);
        return computer && isLocalAddress(computer->address, serviceAddress);
    });
}

int PolicyModel::obtainIdForNewComputer() const
{
    return Utils::getFreeId(idsOf(allComputers));
}

void PolicyModel::addComputer(Computer computer, const std::optional<QString>& groupName)
{
    computer.id = obtainIdForNewComputer();
    for (Group& group : m_groups) {
        if (group.name == groupName)
            group.computers.append(computer.id);
    }
    allComputers.append(computer);
}

void PolicyModel::setComputerName(int id, const QString& name)
{
    if (Computer* computer = find(allComputers, id))
        computer->name = name;
}

void PolicyModel::setComputerPassword(int id, const QString& password)
{
    if (Computer* computer = find(allComputers, id))
        computer->password = password;
}

void PolicyModel::removeComputer(int id)
{
    removeWithId(allComputers, id);
    for (Group& group : m_groups)
        group.computers.removeOne(id);
}

void PolicyModel::addGroup(Group group)
{
    group.id = Utils::getFreeId(idsOf(m_groups));
    m_groups.append(group);
}

void PolicyModel::setGroupName(int id, const QString& name)
{
    if (Group* group = find(m_groups, id))
        group->name = name;
}

void PolicyModel::setGroupMembers(int id, const QVector<int>& computers)
{
    if (Group* group = find(m_groups, id))
        group->computers = computers;
}

void PolicyModel::removeGroup(int id)
{
    removeWithId(m_groups, id);
}

Membership PolicyModel::addToGroup(const QString& groupName, int computerId)
{
    const auto group = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&](const Group& candidate) { return candidate.name == groupName; });
    if (group == m_groups.end())
        return Membership::NoSuchGroup;
    if (group->computers.contains(computerId))
        return Membership::AlreadyMember;
    group->computers.append(computerId);
    return Membership::Added;
}

void PolicyModel::removeFromGroup(int groupId, int computerId)
{
    if (Group* group = find(m_groups, groupId))
        group->computers.removeAll(computerId);
}

} // namespace Velmora
