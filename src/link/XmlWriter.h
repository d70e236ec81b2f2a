// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"
#include "link/PolicyRecords.h"
#include "link/ServiceSettings.h"

#include <QByteArray>

namespace Velmora::Utils {

// XML fragments of the records, in UTF-8, without a declaration: UpsSocketController wraps them in the root
// element of the request. Only texts that the service expects escaped are escaped.

[[nodiscard]] QByteArray makeXml(const QString& id);
[[nodiscard]] QByteArray makeXml(const SmtpConfig& config);
[[nodiscard]] QByteArray makeXml(const ApplicationConfiguration* configuration);
[[nodiscard]] QByteArray makeXml(const Ups& ups);
[[nodiscard]] QByteArray makeXml(const QVector<Group>* groups, const QString& upsId);
/// Consumes the events: every action but the output socket action is released in the vector. The vector must
/// be dropped or refilled after this.
[[nodiscard]] QByteArray makeXml(QVector<Event>* events, const QString& upsId);
[[nodiscard]] QByteArray makeXml(const QVector<Computer>* computers);

} // namespace Velmora::Utils
