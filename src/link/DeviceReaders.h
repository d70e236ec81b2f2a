// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

class QXmlStreamReader;

namespace Velmora::Utils {

// Each reader starts on the element named after its reply and stops at that element's end, or wherever a
// broken document ends, with what was complete until then.

/// The registered devices (`ups_model_list`). `log_params` closes a record; what a device omits it inherits
/// from the device before it.
[[nodiscard]] QVector<Ups> parseUpsModelList(QXmlStreamReader& reader);

/// The service's serial ports (`available_ports`): pairs of neighbouring elements, nothing between them.
[[nodiscard]] QList<SerialPort> parseAvailablePorts(QXmlStreamReader& reader);

/// The lines that the service wants shown (`show_message`).
[[nodiscard]] QVector<QString> parseMessagesToShow(QXmlStreamReader& reader);

} // namespace Velmora::Utils
