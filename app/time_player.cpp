// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/time_player.h"

#include <utility>

namespace corvala::app {

static constexpr int kStepMilliseconds = 100; ///< that a picture is seen, at least
static constexpr int kCheckMilliseconds = 10; ///< until a picture that takes longer is asked for

TimePlayer::TimePlayer(std::function<bool()> isBusy, QObject* parent)
    : QObject(parent)
    , m_isBusy(std::move(isBusy))
{
    connect(&m_timer, &QTimer::timeout, this, &TimePlayer::goOn);
}

void TimePlayer::start()
{
    if (isPlaying())
        return;
    m_timer.start(kCheckMilliseconds);
    Q_EMIT switched(true);
}

void TimePlayer::stop()
{
    if (!isPlaying())
        return;
    m_timer.stop();
    Q_EMIT switched(false);
}

void TimePlayer::goOn()
{
    const bool isBusy = m_isBusy();
    m_timer.start(isBusy ? kCheckMilliseconds : kStepMilliseconds);
    if (!isBusy)
        Q_EMIT stepWanted();
}

} // namespace corvala::app
