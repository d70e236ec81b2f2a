// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/UpsEventsWindow.h"

#include "monitor/core/EventCodes.h"
#include "ui_UpsEventsWindow.h"

UpsEventsWindow::UpsEventsWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::UpsEventsWindow>())
{
    ui->setupUi(this);
    setFixedSize(size());
    m_model.appendRow(new QStandardItem(tr("Pobieranie zdarzeń...")));
    ui->eventsList->setModel(&m_model);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

UpsEventsWindow::~UpsEventsWindow() = default;

void UpsEventsWindow::updateControls(const QString& events)
{
    // The same history again would only throw the reader back to the top.
    if (events.isEmpty() || events == m_shownEvents)
        return;
    m_shownEvents = events;
    m_model.clear();
    for (const QString& line : Velmora::formatEventHistory(events))
        m_model.appendRow(new QStandardItem(line));
}

QString UpsEventsWindow::getEventCodeName(const QString& code)
{
    return Velmora::eventCodeName(code);
}
