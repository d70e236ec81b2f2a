// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

class QLocalServer;
class QObject;

/// The rule that one panel runs at a time. A second one makes itself known to the first by connecting to it.
namespace Velmora::SingleInstance {

/// Whether another panel listens, which has been told of this one by the question itself. Waits for up to
/// half a second.
[[nodiscard]] bool anotherPanelRuns();

/// Makes this panel the one that others find; clears what a killed panel left behind. Where the name cannot
/// be listened on, the panel runs without the rule.
[[nodiscard]] QLocalServer* listenForPanels(QObject* parent);

} // namespace Velmora::SingleInstance
