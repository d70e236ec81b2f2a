// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"
#include "service/wire/Element.h"

#include <QByteArray>
#include <QStringList>

namespace Velmora::Service {

/// No frame is longer than this: a body that reaches a panel in pieces makes it drop the link.
constexpr int maximumFrame = 48 * 1024;

/// A list whose clear text stays below this fits into a frame even if nothing of it can be compressed.
constexpr int maximumListText = maximumFrame - 512;

struct SerialPortStatus
{
    QString name;
    bool free = true;
};

/// Enciphers a document; empty if the frame would be too long to send.
[[nodiscard]] QByteArray encodeFrame(const QByteArray& document);

// Each of these builds one whole document in the form that panels read: no declaration, no whitespace between
// elements, every field of a record written even if empty, and the field that ends a record last.
[[nodiscard]] QByteArray emptyReply(QLatin1String name);
[[nodiscard]] QByteArray textReply(QLatin1String name, const QString& text);
[[nodiscard]] QByteArray deviceListReply(const QVector<DeviceRegistration>& devices);
[[nodiscard]] QByteArray statusListReply(const QVector<DeviceStatus>& devices);
[[nodiscard]] QByteArray stateReply(const DeviceState& state);
[[nodiscard]] QByteArray valuesReply(QLatin1String name, const KeyValues& values);
[[nodiscard]] QByteArray portsReply(const QVector<SerialPortStatus>& ports);
[[nodiscard]] QByteArray elementsReply(QLatin1String name, const QVector<Element>& elements);
[[nodiscard]] QByteArray messagesReply(const QStringList& lines);
[[nodiscard]] QByteArray countdownReply(const QVector<ShutdownTimer>& timers);
[[nodiscard]] QByteArray logPageReply(const QStringList& lines);
[[nodiscard]] QByteArray mailTestReply(int status, const QStringList& messages);

} // namespace Velmora::Service
