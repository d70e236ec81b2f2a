// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bare_field.h"

#include <QProgressBar>

/// Stands in the form where the panel has its own bar: the same widgets, nothing else.
class ProgressBarWidget final : public QWidget
{
public:
    explicit ProgressBarWidget(QWidget* parent = nullptr)
        : QWidget(parent)
        , progressBar(new QProgressBar(this))
    {
        progressBar->setAlignment(Qt::AlignCenter);
        layOutField(this, progressBar);
        setFixedSize(215, 21);
    }

    QProgressBar* const progressBar;
};
