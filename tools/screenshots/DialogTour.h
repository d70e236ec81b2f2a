// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Album;
class PanelDriver;

/// Pictures of every dialog, menu and box that a user can reach, taken as an administrator. `address` is that
/// of the service, which has the password that it is installed with. False once one does not come.
[[nodiscard]] bool takeDialogPictures(PanelDriver& panel, Album& album, const QString& address);
