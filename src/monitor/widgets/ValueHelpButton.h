// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

class QPushButton;
class QWidget;

namespace Velmora {

/// The small button beside a value that is not available; hidden until then.
[[nodiscard]] QPushButton* makeValueHelpButton(QWidget* parent);

/// Shows `button`'s tool tip at once, without waiting for the mouse to rest.
void showValueHelp(QPushButton* button);

} // namespace Velmora
