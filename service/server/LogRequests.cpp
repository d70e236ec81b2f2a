// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/RequestDispatcher.h"

namespace Velmora::Service {

namespace {

std::optional<LogKind> logKind(const QString& name)
{
    if (name == QLatin1String("parameters"))
        return LogKind::Parameters;
    if (name == QLatin1String("messages"))
        return LogKind::Messages;
    if (name == QLatin1String("compensation"))
        return LogKind::Compensation;
    return std::nullopt;
}

LogAge logAge(const QString& name)
{
    if (name == QLatin1String("newer"))
        return LogAge::Newer;
    return name == QLatin1String("older") ? LogAge::Older : LogAge::First;
}

void sendLogPage(const RequestScope& scope, const Element& request)
{
    const std::optional<LogKind> kind = logKind(request.childText(QLatin1String("type")));
    if (!kind) {
        scope.reply(logPageReply({}));
        return;
    }
    const int device = scope.device();
    std::optional<LogBookmark>& bookmark = scope.session().logBookmark();
    LogAge age = logAge(request.childText(QLatin1String("age")));
    if (!bookmark || bookmark->device != device || bookmark->kind != *kind) {
        bookmark = LogBookmark{device, *kind, {}};
        age = LogAge::First;
    }
    scope.reply(logPageReply(scope.logs().page(device, *kind, age, bookmark->position)));
}

void clearLogPosition(const RequestScope& scope, const Element& /*request*/)
{
    scope.session().logBookmark().reset();
}

} // namespace

QVector<RequestEntry> logRequests()
{
    return {
        {"get_ups_logs", Access::Watch, sendLogPage},
        {"clear_logs_cache", Access::Watch, clearLogPosition},
    };
}

} // namespace Velmora::Service
