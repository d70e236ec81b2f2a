// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/PictureLabel.h"

#include "monitor/widgets/Picture.h"

PictureLabel::PictureLabel(QWidget* parent)
    : QLabel(parent)
{}

PictureLabel::~PictureLabel() = default;

void PictureLabel::setSource(const QString& path)
{
    m_source = path;
    setPixmap(Velmora::picture(path));
}
