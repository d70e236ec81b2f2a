// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/SmtpTestWindow.h"

#include "monitor/widgets/Picture.h"
#include "ui_SmtpTestWindow.h"

namespace {

constexpr int firstReportTime = 10000;

// Numbers of the wire.
constexpr int testRuns = 1;
constexpr int testSucceeded = 100;
constexpr int serviceIsSilent = 200;

QString statusColour(SmtpTestWindow::VLSmtpStatus status)
{
    switch (status) {
    case SmtpTestWindow::SmtpStatusFailed:
        return QStringLiteral("#de1414");
    case SmtpTestWindow::SmtpStatusOk:
        return QStringLiteral("#00aa44");
    case SmtpTestWindow::SmtpStatusRunning:
        break;
    }
    return QStringLiteral("#59595B");
}

QPixmap statusPicture(SmtpTestWindow::VLSmtpStatus status)
{
    switch (status) {
    case SmtpTestWindow::SmtpStatusFailed:
        return Velmora::picture(QStringLiteral(":/images/images/status_err_48.png"));
    case SmtpTestWindow::SmtpStatusOk:
        return Velmora::picture(QStringLiteral(":/images/images/status_ok_48.png"));
    case SmtpTestWindow::SmtpStatusRunning:
        break;
    }
    return {};
}

} // namespace

SmtpTestWindow::SmtpTestWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::SmtpTestWindow>())
    , m_spinner(Velmora::animationFile(QStringLiteral(":/images/images/spinner_2_48.gif")))
{
    ui->setupUi(this);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &SmtpTestWindow::accept);
    m_timer.setObjectName(QStringLiteral("noCommunicationTimer"));
    connect(&m_timer, &QTimer::timeout, this, &SmtpTestWindow::noCommunicationTimeout);
    m_timer.start(firstReportTime);
}

SmtpTestWindow::~SmtpTestWindow() = default;

void SmtpTestWindow::updateStatus(const int& status, const QStringList& messages)
{
    // Status 0 is no sign that the service understands the test, so the time goes on.
    if (m_timer.isActive() && status >= testRuns)
        m_timer.stop();
    if (status == testRuns)
        updateStatusInfo(SmtpStatusRunning, tr("Testowanie konfiguracji..."));
    else if (status == testSucceeded)
        updateStatusInfo(SmtpStatusOk, tr("Konfiguracja prawidłowa"));
    else
        updateStatusInfo(SmtpStatusFailed, tr("Konfiguracja błędna"));
    for (const QString& message : messages)
        appendMessage(message);
}

void SmtpTestWindow::noCommunicationTimeout()
{
    updateStatus(serviceIsSilent, {tr("Usługa nie odpowiada. Czy wersja usługi jest zgodna z wersją panelu "
                                      "kontrolnego Velmora?")});
}

void SmtpTestWindow::updateStatusInfo(const VLSmtpStatus& status, const QString& text)
{
    if (status == SmtpStatusRunning) {
        ui->statusImage->setMovie(&m_spinner);
        m_spinner.start();
    } else {
        m_spinner.stop();
        ui->statusImage->setPixmap(statusPicture(status));
    }
    ui->statusText->setStyleSheet(
        QStringLiteral("color: %1; font: bold; font-size: 16px;").arg(statusColour(status)));
    ui->statusText->setText(text);
}

void SmtpTestWindow::appendMessage(const QString& message)
{
    // Not append(): what a mail server answers may look like markup.
    QTextCursor end(ui->messagesEdit->document());
    end.movePosition(QTextCursor::End);
    if (!ui->messagesEdit->document()->isEmpty())
        end.insertBlock();
    end.insertText(message);
    ui->messagesEdit->setTextCursor(end);
    ui->messagesEdit->ensureCursorVisible();
}
