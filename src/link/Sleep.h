// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

namespace Velmora::Utils {

/// Blocks the calling thread for `milliseconds`; no events are handled meanwhile.
void msleep(unsigned long milliseconds);

} // namespace Velmora::Utils
