// SPDX-License-Identifier: BSD-3-Clause
#include "play/idle.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QGuiApplication>

namespace corvala::play {

/// A repeating zero timer would keep the loop busy for ever.
static constexpr int kMostRounds = 10000;

void waitUntilIdle()
{
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    int quietRounds = 0;
    for (int round = 0; round < kMostRounds && quietRounds < 2; ++round) {
        const bool worked = dispatcher->processEvents(QEventLoop::AllEvents);
        quietRounds = worked ? 0 : quietRounds + 1;
        if (!worked)
            QGuiApplication::sync();
    }
}

} // namespace corvala::play
