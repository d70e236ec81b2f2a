// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/PolicyRecords.h"

#include <memory>

class QXmlStreamReader;

namespace Velmora::Utils {

// Each reader starts on its own element and stops at that element's end, or wherever a broken document ends.

[[nodiscard]] Computer parseComputers(QXmlStreamReader& reader);
/// The member ids of a group (`computers`).
[[nodiscard]] QVector<int> parseComputersId(QXmlStreamReader& reader);

[[nodiscard]] std::unique_ptr<MessageAction> parseMessageAction(QXmlStreamReader& reader);
[[nodiscard]] std::unique_ptr<SysCommandAction> parseSysCommandAction(QXmlStreamReader& reader);
[[nodiscard]] std::unique_ptr<PowerOffAction> parsePowerOffAction(QXmlStreamReader& reader);
[[nodiscard]] std::unique_ptr<SendMailAction> parseSendMailAction(QXmlStreamReader& reader);
[[nodiscard]] std::unique_ptr<OutputSocketControlAction>
parseOutputSocketControlAction(QXmlStreamReader& reader);

/// Every whole group of the document. Reads to the document's end.
[[nodiscard]] QVector<Group> parseGroups(QXmlStreamReader& reader);
/// Every whole event of the document. Reads to the document's end.
[[nodiscard]] QVector<Event> parseEvents(QXmlStreamReader& reader);

} // namespace Velmora::Utils
