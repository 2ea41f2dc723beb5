// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

struct _XDisplay;

namespace corvala::app {

/// Shows the wait cursor over the windows of the program while its event loop does not come to
/// answer, whatever holds it up. A thread asks the loop from time to time, and talks to the X
/// server by itself; on other platforms nothing happens.
class BusyCursor : public QObject
{
    Q_OBJECT

public:
    /// Watches the thread that it is made on, which must be that of the application.
    explicit BusyCursor(QObject* parent = nullptr);
    ~BusyCursor() override;

    bool isShown();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Clock = std::chrono::steady_clock;

    void watch();
    void showWait();
    void answer();

    std::atomic<bool> m_worked {true}; ///< the loop has delivered something since it was asked
    std::mutex m_mutex; ///< of what follows
    std::condition_variable m_stop;
    bool m_isEnding = false;
    bool m_isAsked = false;
    bool m_isShown = false;
    Clock::time_point m_askedAt;
    std::vector<unsigned long> m_windows; ///< X windows on the screen, at the last answer
    _XDisplay* m_display = nullptr;
    unsigned long m_cursor = 0;
    std::thread m_thread;
};

} // namespace corvala::app
