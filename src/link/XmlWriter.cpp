// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/XmlWriter.h"

#include "link/TextHelpers.h"

namespace Velmora::Utils {

namespace {

constexpr char lineFeed = '\n';

class Fragment final
{
public:
    Fragment& open(const char* tag)
    {
        m_bytes.append('<').append(tag).append('>');
        return *this;
    }
    Fragment& close(const char* tag)
    {
        m_bytes.append("</").append(tag).append('>');
        return *this;
    }
    /// The text as it stands: a special character breaks the request, which the service's readers know.
    Fragment& text(const char* tag, const QString& value)
    {
        open(tag);
        m_bytes.append(value.toUtf8());
        return close(tag);
    }
    Fragment& escaped(const char* tag, QString value)
    {
        return text(tag, replaceXmlSpecialCharacters(value));
    }
    Fragment& number(const char* tag, int value)
    {
        open(tag);
        m_bytes.append(QByteArray::number(value));
        return close(tag);
    }
    Fragment& flag(const char* tag, bool value) { return number(tag, value ? 1 : 0); }
    Fragment& endLine()
    {
        m_bytes.append(lineFeed);
        return *this;
    }
    Fragment& append(const QByteArray& bytes)
    {
        m_bytes.append(bytes);
        return *this;
    }
    [[nodiscard]] QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

void write(Fragment& xml, const MessageAction& action)
{
    xml.open("message_action").escaped("message_text", action.message).close("message_action");
}

void write(Fragment& xml, const SysCommandAction& action)
{
    xml.open("syscommand_action")
        .text("command_line", action.command_line)
        .text("command_options", action.command_options)
        .flag("stanbyUps", action.stanbyUps)
        .number("delay_time", action.delay_time)
        .close("syscommand_action");
}

void write(Fragment& xml, const PowerOffAction& action)
{
    xml.open("poweroff_action")
        .text("type", action.type)
        .flag("stanbyUps", action.stanbyUps)
        .number("delay_time", action.delay_time)
        .close("poweroff_action");
}

void write(Fragment& xml, const SendMailAction& action)
{
    xml.open("sendmail_action")
        .escaped("charCode", action.charCode)
        .escaped("sender", action.sender)
        .escaped("subject", action.subject)
        .escaped("body", action.body)
        .escaped("receipent", action.receipent)
        .close("sendmail_action");
}

void write(Fragment& xml, const OutputSocketControlAction& action)
{
    xml.open("output_sock_action")
        .flag("first_sock_conf", action.first_sock_conf)
        .flag("first_sock_ena", action.first_sock_ena)
        .number("first_sock_delay", action.first_sock_delay)
        .flag("second_sock_conf", action.second_sock_conf)
        .flag("second_sock_ena", action.second_sock_ena)
        .number("second_sock_delay", action.second_sock_delay)
        .close("output_sock_action");
}

template <typename ActionType>
void writeIfPresent(Fragment& xml, const std::shared_ptr<ActionType>& action)
{
    if (action)
        write(xml, *action);
}

void write(Fragment& xml, const Event& event)
{
    xml.open("event")
        .text("event_state", event.state)
        .escaped("expressionIn", event.expressionIn)
        .escaped("expressionOut", event.expressionOut)
        .number("event_number", event.number)
        .number("event_parentId", event.parentId)
        .open("actions");
    writeIfPresent(xml, event.messageAction);
    writeIfPresent(xml, event.sysCommandAction);
    writeIfPresent(xml, event.powerOffAction);
    writeIfPresent(xml, event.sendMailAction);
    writeIfPresent(xml, event.outputSocketAction);
    xml.close("actions").close("event");
}

} // namespace

QByteArray makeXml(const QString& id)
{
    return Fragment().text("id", id).bytes();
}

QByteArray makeXml(const SmtpConfig& config)
{
    return Fragment()
        .escaped("smtp2_security_type", config.security_type)
        .escaped("smtp2_server", config.server)
        .number("smtp2_port", config.port)
        .number("smtp2_timeout", config.timeout)
        .escaped("smtp2_sender_address", config.sender_address)
        .flag("smtp2_authentication", config.authentication)
        .escaped("smtp2_user", config.user)
        .escaped("smtp2_pass", config.pass)
        .bytes();
}

QByteArray makeXml(const ApplicationConfiguration* configuration)
{
    return Fragment()
        .append(makeXml(static_cast<const SmtpConfig&>(*configuration)))
        .text("log_files_path", configuration->log_files_path)
        .flag("run_on_boot", configuration->run_on_boot)
        .text("control_panel_path", configuration->control_panel_path)
        .bytes();
}

QByteArray makeXml(const Ups& ups)
{
    Fragment xml;
    xml.text("model_name", ups.model_name)
        .text("id", ups.id)
        .text("communication", ups.communication)
        .text("com_port", ups.com_port)
        .text("ip", ups.ip)
        .text("read", ups.read)
        .text("write", ups.write)
        .text("snmp_ver", ups.snmp_ver)
        .text("serial_no", ups.serial_no)
        .text("log_file_size", ups.log_file_size)
        .text("log_time_interval", ups.log_time_interval)
        .text("log_params", ups.log_params)
        .flag("reset_events_request", ups.reset_events_request)
        .text("user_defined_name", ups.user_defined_name);
    for (const QString& id : ups.phy_ids)
        xml.text("phy_id", id);
    return xml.bytes();
}

QByteArray makeXml(const QVector<Group>* groups, const QString& upsId)
{
    Fragment xml;
    xml.text("ups_id", upsId);
    for (const Group& group : *groups) {
        xml.open("group").text("group_name", group.name).endLine();
        xml.number("group_configId", group.id).endLine().open("computers");
        for (const int id : group.computers)
            xml.open("computer").number("computer_configId", id).close("computer");
        xml.close("computers").close("group");
    }
    return xml.bytes();
}

QByteArray makeXml(QVector<Event>* events, const QString& upsId)
{
    Fragment xml;
    xml.text("ups_id", upsId);
    for (Event& event : *events) {
        write(xml, event);
        event.messageAction.reset();
        event.sysCommandAction.reset();
        event.powerOffAction.reset();
        event.sendMailAction.reset();
    }
    return xml.bytes();
}

QByteArray makeXml(const QVector<Computer>* computers)
{
    Fragment xml;
    for (const Computer& computer : *computers) {
        xml.open("computer")
            .text("computer_name", computer.name)
            .text("computer_address", computer.address)
            .text("computer_password", computer.password)
            .number("computer_configId", computer.id)
            .close("computer");
    }
    return xml.bytes();
}

} // namespace Velmora::Utils
