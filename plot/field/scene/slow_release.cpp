// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/slow_release.h"

#include <QElapsedTimer>

#include <utility>

namespace corvala::plot {

SlowRelease::SlowRelease()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { releaseSome(); });
}

void SlowRelease::take(vtkSmartPointer<vtkPolyData> shape)
{
    m_shapes.push_back(std::move(shape));
    if (!m_timer.isActive())
        m_timer.start(0);
}

void SlowRelease::releaseSome()
{
    constexpr int kMilliseconds = 10;
    QElapsedTimer clock;
    clock.start();
    while (!m_shapes.empty() && !clock.hasExpired(kMilliseconds))
        m_shapes.pop_back();
    if (m_shapes.empty())
        m_timer.stop();
}

} // namespace corvala::plot
