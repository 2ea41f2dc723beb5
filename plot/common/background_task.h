// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace corvala::plot {

/// A function that runs on another thread. It must share nothing that changes meanwhile: when the
/// task is destroyed before it is done, the function goes on to its end and its result is dropped.
template<class Result>
class BackgroundTask
{
public:
    explicit BackgroundTask(std::function<Result()> function)
    {
        auto task = std::make_shared<std::packaged_task<Result()>>(std::move(function));
        m_result = task->get_future();
        QThreadPool::globalInstance()->start([task] { (*task)(); });
    }

    /// Waits for the result, at most so long; negative waits to the end. True when it is there.
    bool wait(int milliseconds) const
    {
        if (milliseconds < 0)
            m_result.wait();
        return m_result.wait_for(std::chrono::milliseconds(std::max(milliseconds, 0)))
            == std::future_status::ready;
    }
    /// The result, once; waits for it.
    Result take() { return m_result.get(); }

private:
    std::future<Result> m_result;
};

} // namespace corvala::plot
