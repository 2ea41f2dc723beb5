// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/plain_outside.h"

#include "plot/field/geometry/surface_builder.h"

#include <vtkCellType.h>
#include <vtkHexahedron.h>
#include <vtkPyramid.h>
#include <vtkTetra.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>
#include <vtkWedge.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace corvala::plot {

namespace {

using Number = std::uint32_t; ///< of a point or a face
constexpr Number kNone = std::numeric_limits<Number>::max();

/// The faces of a cell by the places of their corners in the cell.
struct CellFaces
{
    static constexpr std::size_t kMost = 6;
    struct Face
    {
        std::size_t corners = 0;
        std::array<std::size_t, 4> places {};
    };

    std::size_t count = 0;
    std::array<Face, kMost> faces;
};

/// A face without the lowest of its points, by which it is found, in the order that goes round.
struct Face
{
    Number second;
    Number middle; ///< opposite of the lowest; kNone in a triangle
    Number last;
    Number next; ///< face with the same lowest point, or free place
    vtkIdType cell;

    /// Whichever way the faces go round.
    bool isSame(const Face& other) const
    {
        return middle == other.middle
            && ((second == other.last && last == other.second)
                || (second == other.second && last == other.last));
    }
};

/// Faces that one cell has so far.
class OpenFaces
{
public:
    explicit OpenFaces(std::size_t points)
        : m_first(points, kNone)
    {
    }

    /// A face that is known has two cells, and is forgotten.
    void meet(Number lowest, Face face)
    {
        Number* place = &m_first[lowest];
        for (; *place != kNone; place = &m_faces[*place].next) {
            if (!m_faces[*place].isSame(face))
                continue;
            const Number met = *place;
            *place = std::exchange(m_faces[met].next, m_free);
            m_free = met;
            return;
        }
        face.next = kNone;
        if (m_free == kNone) {
            *place = static_cast<Number>(m_faces.size()); // before the faces move
            m_faces.push_back(face);
        } else {
            *place = m_free;
            m_free = std::exchange(m_faces[*place], face).next;
        }
    }

    ZoneSurface surface(vtkDataSet& data) const
    {
        SurfaceBuilder builder(data);
        for (std::size_t lowest = 0; lowest < m_first.size(); ++lowest)
            for (Number at = m_first[lowest]; at != kNone; at = m_faces[at].next) {
                const Face& face = m_faces[at];
                const bool isTriangle = face.middle == kNone;
                const std::array<vtkIdType, 4> corners {static_cast<vtkIdType>(lowest), face.second,
                                                        isTriangle ? face.last : face.middle,
                                                        face.last};
                builder.addFace(corners.data(), isTriangle ? 3 : 4, face.cell);
            }
        return builder.finish();
    }

private:
    std::vector<Number> m_first; ///< by lowest point
    std::vector<Face> m_faces;
    Number m_free = kNone;
};

} // namespace

static CellFaces facesOf(std::size_t count, const vtkIdType* (*faceArray)(vtkIdType))
{
    CellFaces result;
    result.count = count;
    for (std::size_t i = 0; i < count; ++i) {
        CellFaces::Face& face = result.faces[i];
        const vtkIdType* const places = faceArray(static_cast<vtkIdType>(i));
        for (; face.corners < face.places.size() && places[face.corners] >= 0; ++face.corners)
            face.places[face.corners] = static_cast<std::size_t>(places[face.corners]);
    }
    return result;
}

/// By type of cell; without faces for those that are not plain volumes.
static const std::array<CellFaces, 256>& facesByType()
{
    static const auto table = [] {
        std::array<CellFaces, 256> result;
        result[VTK_TETRA] = facesOf(4, &vtkTetra::GetFaceArray);
        result[VTK_HEXAHEDRON] = facesOf(6, &vtkHexahedron::GetFaceArray);
        result[VTK_WEDGE] = facesOf(5, &vtkWedge::GetFaceArray);
        result[VTK_PYRAMID] = facesOf(5, &vtkPyramid::GetFaceArray);
        return result;
    }();
    return table;
}

template<class Id>
static void meetFaces(const CellFaces& cell, const Id* points, vtkIdType number, OpenFaces& open)
{
    for (std::size_t i = 0; i < cell.count; ++i) {
        const CellFaces::Face& face = cell.faces[i];
        std::array<Number, 4> corners;
        std::size_t lowest = 0;
        for (std::size_t c = 0; c < face.corners; ++c) {
            corners[c] = static_cast<Number>(points[face.places[c]]);
            lowest = corners[c] < corners[lowest] ? c : lowest;
        }
        const auto from = [&](std::size_t step) {
            const std::size_t place = lowest + step;
            return corners[place < face.corners ? place : place - face.corners];
        };
        open.meet(
            corners[lowest],
            {from(1), face.corners == 4 ? from(2) : kNone, from(face.corners - 1), kNone, number});
    }
}

std::optional<ZoneSurface> plainOutside(vtkDataSet& data)
{
    auto* const grid = vtkUnstructuredGrid::SafeDownCast(&data);
    const vtkIdType points = data.GetNumberOfPoints();
    if (!grid || grid->GetNumberOfCells() == 0 || points >= kNone
        || grid->GetNumberOfCells() >= static_cast<vtkIdType>(kNone / CellFaces::kMost))
        return std::nullopt;
    const unsigned char* const type = grid->GetCellTypesArray()->GetPointer(0);
    const auto& known = facesByType();
    if (!std::all_of(type, type + grid->GetNumberOfCells(),
                     [&](unsigned char each) { return known[each].count > 0; }))
        return std::nullopt;
    OpenFaces open(static_cast<std::size_t>(points));
    grid->GetCells()->Visit([&](auto& cells) {
        const auto* const corners = cells.GetConnectivity()->GetPointer(0);
        for (vtkIdType cell = 0; cell < cells.GetNumberOfCells(); ++cell)
            meetFaces(known[type[cell]], corners + cells.GetBeginOffset(cell), cell, open);
    });
    return open.surface(data);
}

} // namespace corvala::plot
