// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bare_field.h"

#include <QLineEdit>

/// Stands in the form where the panel has its own field: the same widgets, nothing else.
class LineEditWidget final : public QWidget
{
public:
    explicit LineEditWidget(QWidget* parent = nullptr)
        : QWidget(parent)
        , lineEdit(new QLineEdit(this))
    {
        lineEdit->setObjectName(QStringLiteral("lineEdit"));
        lineEdit->setReadOnly(true);
        lineEdit->setAlignment(Qt::AlignCenter);
        layOutField(this, lineEdit);
    }

    QLineEdit* const lineEdit;
};
