// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora::Utils {

/// Shows a message and returns at once; the box has no parent and deletes itself when closed.
void displayMsgBox(const QString& title, const QString& text);

} // namespace Velmora::Utils
