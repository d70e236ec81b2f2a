// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QPair>

class QXmlStreamReader;

namespace Velmora {

/// Readers of the short replies. Like all readers each starts on the element of its reply and stops at that
/// element's end, or wherever a broken document ends.
class XmlParser final
{
public:
    [[nodiscard]] QVector<Utils::currentDeviceStatus> parseUpsStatusList(QXmlStreamReader& reader) const;
    /// The lines of one page of a log.
    [[nodiscard]] QStringList parseUpsLogsList(QXmlStreamReader& reader) const;
    /// Fills both, first to 0 and empty, and reads to the document's end.
    void parseSmtpTestStatus(QXmlStreamReader& reader, int& status, QStringList& messages) const;
    /// Pairs of timer id and seconds left.
    [[nodiscard]] QList<QPair<int, int>> parseCountdownTimer(QXmlStreamReader& reader) const;
    [[nodiscard]] int parseUpsFoundLoss(QXmlStreamReader& reader) const;
};

} // namespace Velmora
