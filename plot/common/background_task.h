// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace corvala::plot {

/// A function that runs on another thread. It must share nothing that changes meanwhile: when the
/// task is destroyed before it is done, the function goes on to its end and its result is dropped.
/// What the function holds is gone when its result is there.
template<class Result>
class BackgroundTask
{
public:
    explicit BackgroundTask(std::function<Result()> function)
    {
        auto task = std::make_shared<Task>(std::move(function));
        m_result = task->promise.get_future();
        QThreadPool::globalInstance()->start([task] { task->run(); });
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
    struct Task
    {
        explicit Task(std::function<Result()> toRun)
            : function(std::move(toRun))
        {
        }
        void run()
        {
            try {
                Result result = std::exchange(function, nullptr)();
                promise.set_value(std::move(result));
            } catch (...) {
                promise.set_exception(std::current_exception());
            }
        }
        std::function<Result()> function;
        std::promise<Result> promise;
    };

    std::future<Result> m_result;
};

} // namespace corvala::plot
