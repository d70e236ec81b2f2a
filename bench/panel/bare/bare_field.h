// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QPushButton>

/// A value beside the hidden button that every field of the panel has.
inline void layOutField(QWidget* field, QWidget* value)
{
    auto* button = new QPushButton(field);
    button->setFlat(true);
    button->setMaximumSize(21, 21);
    button->hide();
    auto* layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(value);
    layout->addWidget(button);
}
