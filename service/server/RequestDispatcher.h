// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/server/RequestScope.h"

#include <QHash>

namespace Velmora::Service {

enum class Access {
    Watch,  ///< anyone
    Change, ///< only with the administrator password
};

using RequestHandler = void (*)(const RequestScope& scope, const Element& request);

struct RequestEntry
{
    const char* name;
    Access access;
    RequestHandler handler;
};

// The requests by group; each list is static.
[[nodiscard]] QVector<RequestEntry> watchRequests();
[[nodiscard]] QVector<RequestEntry> deviceRequests();
[[nodiscard]] QVector<RequestEntry> policyRequests();
[[nodiscard]] QVector<RequestEntry> administrationRequests();
[[nodiscard]] QVector<RequestEntry> logRequests();

/// Finds the handler of a request by its name and lets it run if the request may do what it asks for.
class RequestDispatcher final
{
public:
    /// broadcast sends a document to every panel.
    RequestDispatcher(const ServiceParts& parts, std::function<void(const QByteArray&)> broadcast);

    void handle(ClientSession& session, const QString& text) const;

private:
    [[nodiscard]] bool isAdministrator(const Element& request) const;

    ServiceParts m_parts;
    std::function<void(const QByteArray&)> m_broadcast;
    QHash<QString, RequestEntry> m_entries;
};

} // namespace Velmora::Service
