// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

namespace Velmora {

/// Key of every frame on the wire. Panel and service must be built with the same value.
constexpr unsigned long long messageKey = 0x5D1C9E3A7B2F4068ULL;

/// Key of passwords that are stored or carried as enciphered text.
constexpr unsigned long long passwordKey = 0xA3E84F176C0D92B5ULL;

} // namespace Velmora
