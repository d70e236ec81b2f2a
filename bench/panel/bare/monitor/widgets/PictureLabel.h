// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Stands in the form where the panel has its own label: the same picture, at its plain size.
class PictureLabel final : public QLabel
{
public:
    using QLabel::QLabel;
    void setSource(const QString& path) { setPixmap(QPixmap(path)); }
};
