// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace corvala::plot {

/// A function that runs on another thread. It must share nothing that changes meanwhile: when the
/// task is destroyed before it is done, a function that has begun goes on to its end and its result
/// is dropped; one that still waits for a thread never runs. What the function holds is gone when
/// its result is there.
template<class Result>
class BackgroundTask
{
public:
    explicit BackgroundTask(std::function<Result()> function)
    {
        auto task = std::make_shared<Task>(std::move(function));
        m_result = task->promise.get_future();
        m_isWanted = task->isWanted;
        QThreadPool::globalInstance()->start([task] { task->run(); });
    }
    ~BackgroundTask() { *m_isWanted = false; }
    BackgroundTask(const BackgroundTask&) = delete;
    BackgroundTask& operator=(const BackgroundTask&) = delete;

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
    struct Task
    {
        explicit Task(std::function<Result()> toRun)
            : function(std::move(toRun))
        {
        }
        void run()
        {
            if (!*isWanted)
                return;
            try {
                Result result = std::exchange(function, nullptr)();
                promise.set_value(std::move(result));
            } catch (...) {
                promise.set_exception(std::current_exception());
            }
        }
        std::function<Result()> function;
        std::promise<Result> promise;
        std::shared_ptr<std::atomic<bool>> isWanted = std::make_shared<std::atomic<bool>>(true);
    };

    std::future<Result> m_result;
    std::shared_ptr<std::atomic<bool>> m_isWanted;
};

} // namespace corvala::plot
