// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/background_task.h"
#include "plot/line/line_curves.h"

#include <atomic>
#include <memory>

namespace corvala::plot {

/// What curves are made from.
struct CurveOrder
{
    std::shared_ptr<const LinePoints> points; ///< never null
    std::vector<double> weights; ///< by weightsOf
    CurveRecipe recipe;
};

/// Whether making curves through these takes so long that another thread is to do it.
bool areManyToFit(const LinePoints& points);

/// Makes the curves of one order at a time on another thread. An order that is dropped ends soon.
class CurveMaker
{
public:
    CurveMaker() = default;
    ~CurveMaker() { drop(); }
    CurveMaker(const CurveMaker&) = delete;
    CurveMaker& operator=(const CurveMaker&) = delete;

    /// Drops the order before.
    void begin(CurveOrder order);
    void drop();
    /// Whether an order has been begun and not taken.
    bool isAtWork() const { return m_task != nullptr; }
    /// Whether that order is of these points and this recipe.
    bool makes(const std::shared_ptr<const LinePoints>& points, const CurveRecipe& recipe) const;
    /// Waits at most so long, negative to the end; true when nothing is in work.
    bool wait(int milliseconds) const { return !m_task || m_task->wait(milliseconds); }
    /// What was begun; waits for it.
    std::vector<RunCurve> take();

private:
    std::shared_ptr<const LinePoints> m_points;
    CurveRecipe m_recipe;
    std::shared_ptr<std::atomic<bool>> m_isWanted; ///< what the task asks; null without an order
    std::unique_ptr<BackgroundTask<std::vector<RunCurve>>> m_task; ///< null without an order
};

} // namespace corvala::plot
