// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever stands in a file of event definitions, reading it ends, and its keys can be told apart.

#include "Require.h"
#include "policy/core/EventDefinitions.h"

#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Velmora::Fuzz::require;
    static const int memory = memfd_create("definitions", 0);
    require(ftruncate(memory, 0) == 0 && pwrite(memory, data, size, 0) == static_cast<ssize_t>(size),
            "the input is written");
    const QString path = QStringLiteral("/proc/self/fd/%1").arg(memory);
    auto definitions = Velmora::readEventDefinitions(path, Velmora::Utils::Ups(), QStringLiteral("polish"));
    require(definitions.isFound(), "the file is read");
    require(definitions.getEventList().size() == definitions.eventKeys.size(), "every key has a row");
    for (const QString& key : qAsConst(definitions.eventKeys)) {
        require(definitions.isParam(key) != definitions.isEventState(key), "a key is a state or a parameter");
        const QString label = definitions.eventLabels.value(key);
        require(definitions.eventLabels.value(definitions.eventKey(label)) == label,
                "a row leads to a key with its label");
    }
    return 0;
}
