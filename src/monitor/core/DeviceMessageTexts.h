// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

namespace Velmora {

/// Text of a numeric message code: a mark that is never translated and a source text of the context
/// "QObject".
struct DeviceMessageText
{
    const char* mark = "";
    const char* source = nullptr; ///< null: no such code
};

[[nodiscard]] DeviceMessageText deviceMessageText(int code);

} // namespace Velmora
