// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/RequestDispatcher.h"

#include "service/Logging.h"

namespace Velmora::Service {

RequestDispatcher::RequestDispatcher(const ServiceParts& parts,
                                     std::function<void(const QByteArray&)> broadcast)
    : m_parts(parts)
    , m_broadcast(std::move(broadcast))
{
    for (const QVector<RequestEntry>& group :
         {watchRequests(), deviceRequests(), policyRequests(), administrationRequests(), logRequests()}) {
        for (const RequestEntry& entry : group)
            m_entries.insert(QLatin1String(entry.name), entry);
    }
}

void RequestDispatcher::handle(ClientSession& session, const QString& text) const
{
    const std::optional<Element> request = parseElement(text);
    if (!request) {
        // Some fields of a panel are not escaped, so a name with "&" in it ends here.
        qCWarning(serviceLog).noquote()
            << "dropped a request of" << session.peer() << "that is not well-formed XML";
        return;
    }
    const auto entry = m_entries.constFind(request->name);
    if (entry == m_entries.constEnd()) {
        qCWarning(serviceLog).noquote()
            << "dropped the unknown request" << request->name.left(64) << "of" << session.peer();
        return;
    }
    const bool administrator = isAdministrator(*request);
    if (entry->access == Access::Change && !administrator) {
        qCWarning(serviceLog).noquote()
            << "refused" << entry->name << "of" << session.peer() % QLatin1Char(':')
            << "it does not carry the administrator password";
        // Another panel may have changed it, or administrator mode ended while a dialog stood open.
        session.send(messagesReply({QStringLiteral("Nothing was changed: a change needs the administrator "
                                                   "password.")}));
        return;
    }
    qCDebug(serviceLog).noquote() << entry->name << "from" << session.peer();
    if (entry->access == Access::Change)
        qCInfo(serviceLog).noquote() << "carrying out" << entry->name << "of" << session.peer();
    entry->handler(RequestScope(m_parts, session, administrator, m_broadcast), *request);
}

bool RequestDispatcher::isAdministrator(const Element& request) const
{
    const QString pass = request.childText(QLatin1String("pass"));
    return !pass.isEmpty() && pass == m_parts.store.data().administratorDigest;
}

} // namespace Velmora::Service
