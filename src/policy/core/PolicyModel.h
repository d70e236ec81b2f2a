// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"
#include "link/PolicyRecords.h"

#include <QStringList>

#include <optional>

namespace Velmora {

/// What the editor of an event says when it is saved.
struct EventEntry
{
    std::optional<QString> key; ///< of the chosen work mode; none leaves the event's own
    std::optional<int> groupId; ///< of the group that the event is saved in; none leaves its own
    QString message;
    // Which actions are wanted. The parameters of all but the message stand in the event already.
    bool showMessage = false;
    bool systemCommand = false;
    bool sendEmail = false;
    bool shutdownSystem = false;
    bool outputSocket = false;
};

enum class EventVerdict {
    Accepted,
    NothingEdited,
    Duplicate, ///< of a work mode in its group, or of a name on an advanced device
    NoShutdownParameters,
    NoCommandParameters,
    NoEmailParameters,
    NoSocketParameters,
    CommandNotBeforeShutdown, ///< equal delays are refused as well
    SocketNotBeforeShutdown
};

enum class Membership { Added, AlreadyMember, NoSuchGroup };

/// The policy of one device as it is being edited: its events and groups, and the computers of the whole
/// system. Nothing is sent from here.
///
/// The event in the editor is known by its place in this model and survives that the service sends the events
/// again. Pointers that are handed out hold until the next call that changes the model.
class PolicyModel final
{
public:
    explicit PolicyModel(const Utils::Ups& device);

    [[nodiscard]] const Utils::Ups& device() const { return ups; }
    /// Events have free names and expressions instead of a work mode of the table.
    [[nodiscard]] bool isAdvanced() const { return m_advanced; }
    [[nodiscard]] bool hasOutputSockets() const { return ups.output_socket1 || ups.output_socket2; }

    // The service's answers, each of which replaces what it is about. An event in the editor is kept.
    void setEvents(const QVector<Event>& events);
    void setGroups(const QVector<Group>& groups);
    void setComputers(const QVector<Computer>& computers);
    /// All three answers have come, be they empty.
    [[nodiscard]] bool isComplete() const { return m_eventsHere && m_groupsHere && m_computersHere; }

    [[nodiscard]] const QVector<Event>& events() const { return allEvents; }
    [[nodiscard]] const QVector<Group>& groups() const { return m_groups; }
    [[nodiscard]] const QVector<Computer>& computers() const { return allComputers; }

    [[nodiscard]] QVector<Event> eventsOfGroup(int groupId) const;
    [[nodiscard]] int getMaxEventNumber() const;
    /// Index of the first event with these two values; -1 if there is none.
    [[nodiscard]] int getEventId(int parentId, int number) const;
    [[nodiscard]] int getEventId(const Event& event) const;
    void removeEvent(const Event& event);

    // The event in the editor.
    void addEvent();
    /// False if there is no such event.
    [[nodiscard]] bool editEvent(const Event& event);
    [[nodiscard]] bool isEditing() const { return m_editedIndex >= 0; }
    [[nodiscard]] bool isNewEvent() const { return m_isNewEvent; }
    /// Null while the editor is closed.
    [[nodiscard]] Event* editedEvent();
    /// Closes the editor if nothing is wrong. A refused event keeps what the entry says of its work mode and
    /// its actions.
    [[nodiscard]] EventVerdict saveEvent(const EventEntry& entry);
    /// A new event goes; of an old one only name and expressions come back, as they were when
    /// expressionsToEdit() was last called.
    void cancelEvent();

    /// What the editor of conditions starts with: empty, a name, or a name and two expressions; more if
    /// several events are called `chosenName`. `namePrefix` and the next number make the name of a new event.
    [[nodiscard]] QStringList expressionsToEdit(const QString& chosenName, const QString& namePrefix);
    /// Name and two expressions; anything else is ignored.
    void storeExpressions(const QStringList& expressions);

    [[nodiscard]] const Computer* getComputerFromList(int id) const;
    [[nodiscard]] const Group* group(int id) const;
    [[nodiscard]] QStringList groupNames() const;
    /// Members without a computer are skipped.
    [[nodiscard]] bool groupHoldsLocalComputer(int groupId, const QString& serviceAddress) const;
    [[nodiscard]] int obtainIdForNewComputer() const;

    /// Gives the computer an id. Groups of that name take it in.
    void addComputer(Computer computer, const std::optional<QString>& groupName);
    void setComputerName(int id, const QString& name);
    void setComputerPassword(int id, const QString& password);
    /// Also from the groups, from each of them once.
    void removeComputer(int id);

    /// Gives the group an id.
    void addGroup(Group group);
    void setGroupName(int id, const QString& name);
    void setGroupMembers(int id, const QVector<int>& computers);
    /// Its events stay, and are sent with a parent that is gone.
    void removeGroup(int id);
    [[nodiscard]] Membership addToGroup(const QString& groupName, int computerId);
    /// Every occurrence.
    void removeFromGroup(int groupId, int computerId);

private:
    [[nodiscard]] bool isDuplicate(const QString& key, int groupId) const;
    void takeActions(Event& event, const EventEntry& entry) const;
    [[nodiscard]] EventVerdict missingParameters(const Event& event, const EventEntry& entry) const;
    void closeEditor();
    void carryOver(Event edited);
    [[nodiscard]] int nextEventNumber() const;

    Utils::Ups ups;
    bool m_advanced;
    QVector<Event> allEvents;
    QVector<Group> m_groups;
    QVector<Computer> allComputers;
    bool m_eventsHere = false;
    bool m_groupsHere = false;
    bool m_computersHere = false;

    int m_editedIndex = -1;
    bool m_isNewEvent = false;
    QStringList previousExpressions;
};

} // namespace Velmora
