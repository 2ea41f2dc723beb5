// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/shape_pieces.h"

#include <QTimer>

namespace corvala::plot {

/// Holds shapes that nobody else needs any more, and lets them go a few at a time while the event
/// loop runs: to give back the memory of very many at once would hold the window up.
class SlowRelease
{
public:
    SlowRelease();

    void take(vtkSmartPointer<vtkPolyData> shape);

private:
    void releaseSome();

    ShapePieces m_shapes;
    QTimer m_timer; ///< runs while there are shapes
};

} // namespace corvala::plot
