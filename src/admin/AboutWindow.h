// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AboutWindow;
}

/// Name, version, licence and libraries of the panel.
class AboutWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutWindow)

public:
    explicit AboutWindow(QWidget* parent);
    ~AboutWindow() override;

private:
    std::unique_ptr<Ui::AboutWindow> ui;
};
