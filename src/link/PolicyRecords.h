// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

#include <memory>

/// A computer of the network that the policy acts on.
struct Computer
{
    QString name;
    QString address;
    QString reserved1; ///< copied with the record, never on the wire, like the next two
    QString reserved2;
    QString reserved3;
    QString password;
    int id = -1;
};

/// A group of computers; members are held by id.
struct Group
{
    QString name;
    QVector<int> computers;
    int id = 0;
};

/// Base of the five actions that an event can lead to. The slot of Event tells the kind.
struct Action
{
    Action() = default;
    Action(const Action&) = default;
    Action& operator=(const Action&) = default;
    virtual ~Action() = default;
};

struct MessageAction final : Action
{
    QString message;
};

struct SysCommandAction final : Action
{
    QString command_line;
    QString command_options;
    bool stanbyUps = false; ///< true leaves the UPS in stand-by
    int delay_time = 0;     ///< seconds
};

struct PowerOffAction final : Action
{
    QString type; ///< "shutdown", "shutdown_Force", "hibernation" or "reboot"
    bool stanbyUps = false;
    int delay_time = 0; ///< seconds
};

struct SendMailAction final : Action
{
    QString charCode;
    QString sender;
    QString subject;
    QString body;
    QString receipent;
};

struct OutputSocketControlAction final : Action
{
    bool first_sock_conf = false;
    bool first_sock_ena = false;
    int first_sock_delay = 0;
    bool second_sock_conf = false;
    bool second_sock_ena = false;
    int second_sock_delay = 0;
};

/// One row of the event table: a condition and at most one action of each kind; a null slot means none.
/// Copies share their actions.
struct Event
{
    [[nodiscard]] QString getState() const { return state; }

    QString state;
    QString expressionIn; ///< comma-terminated postfix text, like expressionOut
    QString expressionOut;
    int number = 0;
    int parentId = 0;
    std::shared_ptr<MessageAction> messageAction;
    std::shared_ptr<SysCommandAction> sysCommandAction;
    std::shared_ptr<PowerOffAction> powerOffAction;
    std::shared_ptr<SendMailAction> sendMailAction;
    std::shared_ptr<OutputSocketControlAction> outputSocketAction;
};

Q_DECLARE_METATYPE(Computer)
Q_DECLARE_METATYPE(Group)
Q_DECLARE_METATYPE(Event)
