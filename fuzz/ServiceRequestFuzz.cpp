// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever a panel asks, with the administrator's password or without, the service answers with documents
// that panels can read, and asks no more of a frame than it may hold. 0xFF, which no UTF-8 holds, ends a
// request.

#include "Require.h"
#include "support/Feed.h"
#include "support/InProcessService.h"

#include <QCoreApplication>

#include <cstdint>

namespace {

// Requests that are dropped and replies too long for a frame are both logged; only the latter critically.
void endOnCriticalMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    Velmora::Fuzz::require(type != QtCriticalMsg, qPrintable(text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr);
    qInstallMessageHandler(endOnCriticalMessage);
    const auto requests =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\xFF');
    Velmora::Tests::InProcessService service;
    Velmora::UpsSocketController link;
    for (const QByteArray& request : requests) {
        // The mail test alone talks to somebody else.
        if (request.contains("smtp2_send_test_mail"))
            continue;
        const auto replies = service.ask(request);
        for (const QByteArray& reply : replies)
            Velmora::Fuzz::require(Velmora::Tests::feed(link, Velmora::Tests::frame(reply)),
                                   "a panel reads it");
    }
    return 0;
}
