// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class UpdateDownloadWindow;
}

/// Progress of the installer's download, which the user can cancel.
class UpdateDownloadWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateDownloadWindow)

public:
    explicit UpdateDownloadWindow(QWidget* parent);
    ~UpdateDownloadWindow() override;

signals:
    void downloadUpdateCanceled();

public slots:
    void setRange(int minimum, int maximum);
    /// Percent; values outside the range are ignored.
    void updateDownloadProgress(int percent);
    // Both close the dialog without cancelling anything.
    void updateDownloadFinished();
    void updateDownlaodError(const QString& reason);
    /// What the user's Cancel and closing the dialog come to.
    void reject() override;

private:
    std::unique_ptr<Ui::UpdateDownloadWindow> ui;
};
