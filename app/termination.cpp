// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

namespace corvala::app {

static constexpr int kShellOffset = 128;

static int pipeEnds[2] = {-1, -1};
static volatile std::sig_atomic_t seenSignal = 0;

static void noteSignal(int signal)
{
    seenSignal = signal;
    const char token = 0;
    if (write(pipeEnds[1], &token, sizeof token) < 0)
        _exit(kShellOffset + signal);
}

/// What the program was told to ignore at its start, as under nohup, stays ignored.
static void catchSignal(int signal, const struct sigaction& before)
{
    if (before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = before;
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    sigaction(signal, &action, nullptr);
}

Termination::Termination()
{
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        sigaction(kSignals[i], nullptr, &m_before[i]);
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, qApp);
    QObject::connect(m_notifier, &QSocketNotifier::activated, qApp, [this] {
        m_notifier->setEnabled(false);
        QCoreApplication::exit(exitCode(0));
    });
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        catchSignal(kSignals[i], m_before[i]);
}

Termination::~Termination()
{
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        sigaction(kSignals[i], &m_before[i], nullptr);
    delete m_notifier;
    for (int& end : pipeEnds) {
        close(end);
        end = -1;
    }
}

int Termination::exitCode(int usual)
{
    return seenSignal != 0 ? kShellOffset + seenSignal : usual;
}

} // namespace corvala::app
