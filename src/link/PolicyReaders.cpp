// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/PolicyReaders.h"

#include "link/TokenHelpers.h"

namespace Velmora::Utils {

namespace {

// False if the document ended before the element did: the record then is not whole.
bool readGroup(QXmlStreamReader& reader, Group& group)
{
    return forEachStartElement(reader, QLatin1String("group"), [&] {
        if (reader.name() == QLatin1String("group_name"))
            group.name = readText(reader);
        else if (reader.name() == QLatin1String("group_configId"))
            group.id = readNumber(reader);
        else if (reader.name() == QLatin1String("computers"))
            group.computers = parseComputersId(reader);
    });
}

void readAction(QXmlStreamReader& reader, Event& event)
{
    if (reader.name() == QLatin1String("message_action"))
        event.messageAction = parseMessageAction(reader);
    else if (reader.name() == QLatin1String("syscommand_action"))
        event.sysCommandAction = parseSysCommandAction(reader);
    else if (reader.name() == QLatin1String("poweroff_action"))
        event.powerOffAction = parsePowerOffAction(reader);
    else if (reader.name() == QLatin1String("sendmail_action"))
        event.sendMailAction = parseSendMailAction(reader);
    else if (reader.name() == QLatin1String("output_sock_action"))
        event.outputSocketAction = parseOutputSocketControlAction(reader);
}

// The actions are recognised at any depth of the event.
bool readEvent(QXmlStreamReader& reader, Event& event)
{
    return forEachStartElement(reader, QLatin1String("event"), [&] {
        if (reader.name() == QLatin1String("event_state"))
            event.state = readText(reader);
        else if (reader.name() == QLatin1String("expressionIn"))
            event.expressionIn = readText(reader);
        else if (reader.name() == QLatin1String("expressionOut"))
            event.expressionOut = readText(reader);
        else if (reader.name() == QLatin1String("event_number"))
            event.number = readNumber(reader);
        else if (reader.name() == QLatin1String("event_parentId"))
            event.parentId = readNumber(reader);
        else
            readAction(reader, event);
    });
}

template <typename Record, typename ReadRecord>
QVector<Record> readAll(QXmlStreamReader& reader, QLatin1String tag, ReadRecord readRecord)
{
    QVector<Record> records;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != tag)
            continue;
        Record record;
        if (readRecord(reader, record))
            records.append(record);
    }
    return records;
}

} // namespace

Computer parseComputers(QXmlStreamReader& reader)
{
    Computer computer;
    forEachStartElement(reader, QLatin1String("computer"), [&] {
        if (reader.name() == QLatin1String("computer_name"))
            computer.name = readText(reader);
        else if (reader.name() == QLatin1String("computer_address"))
            computer.address = readText(reader);
        else if (reader.name() == QLatin1String("computer_password"))
            computer.password = readText(reader);
        else if (reader.name() == QLatin1String("computer_configId"))
            computer.id = readNumber(reader);
    });
    return computer;
}

QVector<int> parseComputersId(QXmlStreamReader& reader)
{
    QVector<int> ids;
    forEachStartElement(reader, QLatin1String("computers"), [&] {
        if (reader.name() == QLatin1String("computer_configId"))
            ids.append(readNumber(reader));
    });
    return ids;
}

std::unique_ptr<MessageAction> parseMessageAction(QXmlStreamReader& reader)
{
    auto action = std::make_unique<MessageAction>();
    forEachStartElement(reader, QLatin1String("message_action"), [&] {
        if (reader.name() == QLatin1String("message_text"))
            action->message = readText(reader);
    });
    return action;
}

std::unique_ptr<SysCommandAction> parseSysCommandAction(QXmlStreamReader& reader)
{
    auto action = std::make_unique<SysCommandAction>();
    forEachStartElement(reader, QLatin1String("syscommand_action"), [&] {
        if (reader.name() == QLatin1String("command_line"))
            action->command_line = readText(reader);
        else if (reader.name() == QLatin1String("command_options"))
            action->command_options = readText(reader);
        else if (reader.name() == QLatin1String("stanbyUps"))
            action->stanbyUps = readFlag(reader);
        else if (reader.name() == QLatin1String("delay_time"))
            action->delay_time = readNumber(reader);
    });
    return action;
}

std::unique_ptr<PowerOffAction> parsePowerOffAction(QXmlStreamReader& reader)
{
    auto action = std::make_unique<PowerOffAction>();
    forEachStartElement(reader, QLatin1String("poweroff_action"), [&] {
        if (reader.name() == QLatin1String("type"))
            action->type = readText(reader);
        else if (reader.name() == QLatin1String("stanbyUps"))
            action->stanbyUps = readFlag(reader);
        else if (reader.name() == QLatin1String("delay_time"))
            action->delay_time = readNumber(reader);
    });
    return action;
}

std::unique_ptr<SendMailAction> parseSendMailAction(QXmlStreamReader& reader)
{
    auto action = std::make_unique<SendMailAction>();
    forEachStartElement(reader, QLatin1String("sendmail_action"), [&] {
        if (reader.name() == QLatin1String("charCode"))
            action->charCode = readText(reader);
        else if (reader.name() == QLatin1String("sender"))
            action->sender = readText(reader);
        else if (reader.name() == QLatin1String("subject"))
            action->subject = readText(reader);
        else if (reader.name() == QLatin1String("body"))
            action->body = readText(reader);
        else if (reader.name() == QLatin1String("receipent"))
            action->receipent = readText(reader);
    });
    return action;
}

std::unique_ptr<OutputSocketControlAction> parseOutputSocketControlAction(QXmlStreamReader& reader)
{
    auto action = std::make_unique<OutputSocketControlAction>();
    forEachStartElement(reader, QLatin1String("output_sock_action"), [&] {
        if (reader.name() == QLatin1String("first_sock_conf"))
            action->first_sock_conf = readFlag(reader);
        else if (reader.name() == QLatin1String("first_sock_ena"))
            action->first_sock_ena = readFlag(reader);
        else if (reader.name() == QLatin1String("first_sock_delay"))
            action->first_sock_delay = readNumber(reader);
        else if (reader.name() == QLatin1String("second_sock_conf"))
            action->second_sock_conf = readFlag(reader);
        else if (reader.name() == QLatin1String("second_sock_ena"))
            action->second_sock_ena = readFlag(reader);
        else if (reader.name() == QLatin1String("second_sock_delay"))
            action->second_sock_delay = readNumber(reader);
    });
    return action;
}

QVector<Group> parseGroups(QXmlStreamReader& reader)
{
    return readAll<Group>(reader, QLatin1String("group"), readGroup);
}

QVector<Event> parseEvents(QXmlStreamReader& reader)
{
    return readAll<Event>(reader, QLatin1String("event"), readEvent);
}

} // namespace Velmora::Utils
