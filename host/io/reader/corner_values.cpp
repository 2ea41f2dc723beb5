// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/corner_values.h"

#include <algorithm>
#include <limits>

namespace corvala::host::io::reader {

/// The points as they come to be by the values that corners use them with.
class PointSplitter
{
public:
    PointSplitter(vtkDoubleArray& points, const std::vector<CornerValues*>& values)
        : m_points(points)
        , m_values(values)
        , m_next(static_cast<std::size_t>(points.GetNumberOfTuples()), kNone)
        , m_isUsed(m_next.size(), false)
        , m_places(values.size(), std::vector<std::int32_t>(m_next.size(), -1))
    {
    }

    /// The point for a corner that names this one.
    vtkIdType pointOf(std::size_t corner, vtkIdType named)
    {
        vtkIdType point = named;
        for (int steps = 0; steps < kMostSteps && m_isUsed[at(point)]; ++steps) {
            if (isOf(at(point), corner))
                return point;
            if (m_next[at(point)] == kNone)
                break;
            point = m_next[at(point)];
        }
        if (m_isUsed[at(named)])
            point = copyOf(named);
        m_isUsed[at(point)] = true;
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_places[i][at(point)] = m_values[i]->ofCorner[corner];
        return point;
    }

    void setValues()
    {
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            vtkFloatArray& named = *m_values[i]->values;
            auto values = vtkSmartPointer<vtkFloatArray>::New();
            values->SetName(named.GetName());
            values->SetNumberOfComponents(named.GetNumberOfComponents());
            values->SetNumberOfTuples(m_points.GetNumberOfTuples());
            for (vtkIdType point = 0; point < values->GetNumberOfTuples(); ++point)
                for (int c = 0; c < values->GetNumberOfComponents(); ++c)
                    values->SetTypedComponent(point, c, value(named, m_places[i][at(point)], c));
            m_values[i]->values = values;
        }
    }

private:
    static constexpr vtkIdType kNone = -1;
    static constexpr int kMostSteps = 64; ///< to look for a copy; another one does no harm

    static std::size_t at(vtkIdType point) { return static_cast<std::size_t>(point); }

    static float value(vtkFloatArray& named, std::int32_t place, int component)
    {
        return place < 0 ? std::numeric_limits<float>::quiet_NaN()
                         : named.GetTypedComponent(place, component);
    }

    bool isOf(std::size_t point, std::size_t corner) const
    {
        for (std::size_t i = 0; i < m_values.size(); ++i)
            if (m_places[i][point] != m_values[i]->ofCorner[corner])
                return false;
        return true;
    }

    /// Stands behind the point itself, in front of its other copies.
    vtkIdType copyOf(vtkIdType point)
    {
        double place[3];
        m_points.GetTypedTuple(point, place);
        const vtkIdType copy = m_points.InsertNextTypedTuple(place);
        m_next.push_back(m_next[at(point)]);
        m_next[at(point)] = copy;
        m_isUsed.push_back(true);
        for (std::vector<std::int32_t>& places : m_places)
            places.push_back(-1);
        return copy;
    }

    vtkDoubleArray& m_points;
    std::vector<CornerValues*> m_values;
    std::vector<vtkIdType> m_next; ///< of the points at the same place, by point
    std::vector<bool> m_isUsed;
    std::vector<std::vector<std::int32_t>> m_places; ///< in the values, by point
};

/// Values that no corner names are those of the points when there are as many.
static bool isByCorner(CornerValues& values, vtkIdType pointCount)
{
    if (!values.fault.isEmpty()
        || (values.ofCorner.empty() && values.values->GetNumberOfTuples() != pointCount)) {
        values.values->SetNumberOfTuples(0);
        values.ofCorner.clear();
    }
    return !values.ofCorner.empty();
}

void splitPoints(vtkDoubleArray& points, vtkIdTypeArray& corners,
                 const std::vector<CornerValues*>& values)
{
    const vtkIdType pointCount = points.GetNumberOfTuples();
    std::vector<CornerValues*> byCorner;
    for (CornerValues* const each : values)
        if (isByCorner(*each, pointCount))
            byCorner.push_back(each);
    if (byCorner.empty())
        return;
    const vtkIdType count = corners.GetNumberOfValues();
    for (CornerValues* const each : values) // those of the points, too
        if (each->ofCorner.empty() && each->values->GetNumberOfTuples() > 0) {
            for (vtkIdType corner = 0; corner < count; ++corner)
                each->ofCorner.push_back(static_cast<std::int32_t>(corners.GetValue(corner)));
            byCorner.push_back(each);
        }
    PointSplitter splitter(points, byCorner);
    for (vtkIdType corner = 0; corner < count; ++corner)
        corners.SetValue(
            corner, splitter.pointOf(static_cast<std::size_t>(corner), corners.GetValue(corner)));
    splitter.setValues();
}

} // namespace corvala::host::io::reader
