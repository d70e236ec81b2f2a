// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Velmora::Service {

namespace {

// A signal handler may call next to nothing: it writes one byte, and the event loop does the rest.
std::array<int, 2> signalPipe{-1, -1};

void writeToPipe(int /*signal*/)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
}

void setHandler(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
{
    if (::pipe2(signalPipe.data(), O_NONBLOCK | O_CLOEXEC) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &TerminationSignals::drain);
    setHandler(SIGTERM, writeToPipe);
    setHandler(SIGINT, writeToPipe);
    // A reader of our output that goes away must not end the service.
    setHandler(SIGPIPE, SIG_IGN);
}

TerminationSignals::~TerminationSignals()
{
    setHandler(SIGTERM, SIG_DFL);
    setHandler(SIGINT, SIG_DFL);
    m_notifier.reset();
    for (int& end : signalPipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void TerminationSignals::drain()
{
    std::array<char, 16> bytes{};
    while (::read(signalPipe[0], bytes.data(), bytes.size()) > 0) {
    }
    emit terminationRequested();
}

} // namespace Velmora::Service
