// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever bytes arrive, the link reads them to their end or drops the connection, and then works on.

#include "Require.h"
#include "support/Feed.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Velmora::UpsSocketController link;
    QString version;
    QObject::connect(&link, &Velmora::UpsSocketController::serviceVersionReceived, &link,
                     [&version](const QString& text) { version = text; });
    (void)Velmora::Tests::feed(link, QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    const QByteArray intact = Velmora::Tests::frame("<service_version>intact</service_version>");
    Velmora::Fuzz::require(Velmora::Tests::feed(link, intact) && version == QLatin1String("intact"),
                           "a new connection is in step");
    return 0;
}
