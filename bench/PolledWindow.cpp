// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/PolledWindow.h"

#include "app/ControlPanelConfiguration.h"
#include "bench/ServedDevices.h"
#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/UpsSocketController.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/VelmoraWindow.h"
#include "support/PaintCounter.h"

#include <QApplication>
#include <QBuffer>

#include <cstdio>
#include <cstdlib>

namespace Velmora::Bench {

namespace {

// None of those that bench/panel gives its services.
const QString emptyAddress = QStringLiteral("127.0.61.254");

[[noreturn]] void giveUp(const char* reason)
{
    std::fprintf(stderr, "velmora-bench-window: %s\n", reason);
    std::exit(2);
}

void processAll()
{
    // A paint is asked for by an event and done by the next.
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

} // namespace

QByteArray frameOf(const QByteArray& message)
{
    const QByteArray blob = encrypt(message);
    return Utils::prepareMessageSize(blob) + blob;
}

PolledWindow::PolledWindow()
{
    ControlPanelConfiguration configuration;
    configuration.setServerAddress(emptyAddress);
    configuration.setCheckForUpdates(false);
    m_window = std::make_unique<VelmoraWindow>();
    m_link = m_window->findChild<UpsSocketController*>();
    m_window->show();
    bool refused = false;
    QObject::connect(m_link, &UpsSocketController::socketError, m_link, [&refused] { refused = true; });
    QObject::connect(m_link, &UpsSocketController::upsConnected, m_link,
                     [] { giveUp("A service listens on 127.0.61.254"); });
    while (!refused)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_link->disconnect(m_link);
    // No more attempts, and no watchdog that ends in a lost service.
    for (QTimer* timer : m_window->findChildren<QTimer*>())
        timer->stop();
}

PolledWindow::~PolledWindow() = default;

void PolledWindow::take(QByteArray frames)
{
    QBuffer source(&frames);
    source.open(QIODevice::ReadOnly);
    (void)m_link->readMessages(source);
    processAll();
}

void PolledWindow::showDevices(int count)
{
    take(frameOf(devicesMessage(count)) + frameOf(statusesMessage(count, 0)) + frameOf(stateMessage(0)));
}

PolledWindow::Disturbance PolledWindow::pollUnchanged(int count, int rounds)
{
    const QByteArray seconds = frameOf(statusesMessage(count, 0)) + frameOf(stateMessage(0));
    const QByteArray round = frameOf(configurationMessage()) + seconds + seconds;
    take(round);
    Disturbance disturbance;
    const auto note = [&disturbance] { ++disturbance.rows; };
    QObject context;
    auto* rows = m_window->findChild<UpsTreeWidget*>()->model();
    QObject::connect(rows, &QAbstractItemModel::dataChanged, &context, note);
    QObject::connect(rows, &QAbstractItemModel::rowsInserted, &context, note);
    QObject::connect(rows, &QAbstractItemModel::rowsRemoved, &context, note);
    QObject::connect(rows, &QAbstractItemModel::modelReset, &context, note);
    Tests::PaintCounter paints;
    QApplication::instance()->installEventFilter(&paints);
    for (int i = 0; i < rounds; ++i)
        take(round);
    disturbance.paints = paints.count;
    take(frameOf(stateMessage(1)));
    if (paints.count == disturbance.paints)
        giveUp("A changed report was not painted");
    return disturbance;
}

} // namespace Velmora::Bench
