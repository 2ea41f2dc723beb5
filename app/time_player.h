// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace corvala::app {

/// Asks for one step after the other, each when the picture of the one before is complete.
class TimePlayer : public QObject
{
    Q_OBJECT

public:
    /// `isBusy` says whether the picture is not complete yet.
    explicit TimePlayer(std::function<bool()> isBusy, QObject* parent = nullptr);

    bool isPlaying() const { return m_timer.isActive(); }
    void start();
    void stop();

Q_SIGNALS:
    void stepWanted();
    void switched(bool isPlaying);

private:
    void goOn();

    std::function<bool()> m_isBusy;
    QTimer m_timer; ///< single steps
};

} // namespace corvala::app
