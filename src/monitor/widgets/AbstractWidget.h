// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

/// What the state panel needs of a value field beyond being a widget. QWidget's own setEnabled is not
/// virtual, so that a field which empties itself when disabled is reached through this interface.
class AbstractWidget
{
public:
    virtual ~AbstractWidget() = default;
    virtual void setEnabled(bool enabled) = 0;
};
