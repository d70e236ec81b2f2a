// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ConnectWithServiceWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Points the panel at another service, now and, where the ini file can be written, for later runs.
class ConnectWithServiceWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConnectWithServiceWindow)

public:
    explicit ConnectWithServiceWindow(QWidget* parent);
    ~ConnectWithServiceWindow() override;

    /// `controller` outlives the dialog. Its present address is offered for editing.
    void setSocketController(Velmora::UpsSocketController* controller);

public slots:
    void accept() override;

private:
    std::unique_ptr<Ui::ConnectWithServiceWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
};
