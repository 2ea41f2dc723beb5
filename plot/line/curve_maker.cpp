// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/curve_maker.h"

#include <utility>

namespace corvala::plot {

/// Steep curves take some hundred passes through their points.
bool areManyToFit(const LinePoints& points)
{
    constexpr std::size_t kMany = 2'000;
    return points.size() >= kMany;
}

void CurveMaker::begin(CurveOrder order)
{
    drop();
    m_isWanted = std::make_shared<std::atomic<bool>>(true);
    m_points = order.points;
    m_recipe = order.recipe;
    m_task = std::make_unique<BackgroundTask<std::vector<RunCurve>>>(
        [order = std::move(order), isWanted = m_isWanted] {
            return curvesThrough(*order.points, order.weights, order.recipe,
                                 [&isWanted] { return isWanted->load(); });
        });
}

void CurveMaker::drop()
{
    if (m_isWanted)
        *m_isWanted = false;
    m_isWanted.reset();
    m_task.reset();
    m_points.reset();
}

bool CurveMaker::makes(const std::shared_ptr<const LinePoints>& points,
                       const CurveRecipe& recipe) const
{
    return m_task && m_points == points && m_recipe == recipe;
}

std::vector<RunCurve> CurveMaker::take()
{
    std::vector<RunCurve> curves = m_task->take();
    drop();
    return curves;
}

} // namespace corvala::plot
