// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/ServiceSettings.h"

#include <memory>

class QXmlStreamReader;

namespace Velmora::Utils {

/// The service-wide settings, never null. Reads from the element `application_configuration` to the
/// document's end; on any other element the empty record comes back at once.
[[nodiscard]] std::unique_ptr<ApplicationConfiguration> parseAppConfiguration(QXmlStreamReader& reader);

} // namespace Velmora::Utils
