// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

class QTimer;

namespace Velmora::Utils {

/// Stops `timer` and clears the pointer. The timer is only marked for deletion, since it may be the one whose
/// time-out is being handled. Null is fine.
void endTimer(QTimer*& timer);

} // namespace Velmora::Utils
