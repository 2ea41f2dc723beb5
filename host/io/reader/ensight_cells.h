// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/ensight_geometry.h"

#include <vtkCellArray.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <unordered_map>

namespace corvala::host::io::reader {

/// Point numbers as elements name them.
class EnSightNodes
{
public:
    /// Points are numbered from 1.
    explicit EnSightNodes(qint64 count)
        : m_count(count)
    {
    }
    /// Points have these numbers.
    explicit EnSightNodes(const std::vector<std::int32_t>& ids);

    qint64 count() const { return m_count; }
    /// From 0; -1 for a point that does not exist.
    vtkIdType point(std::int32_t id) const;

private:
    qint64 m_count;
    std::unordered_map<std::int32_t, vtkIdType> m_pointOfId; ///< empty where they are numbered
};

/// How the ids of elements stand in a file.
enum class EnSightIds { None, Listed, BesideNodes };

/// Collects the elements of one part as the cells of a grid.
class EnSightCells
{
public:
    EnSightCells(EnSightStream& file, const EnSightNodes& nodes, EnSightIds ids);

    /// Reads the elements of a kind, whose name was read. Throws ReadFailure.
    void read(const std::string& kind);
    const std::vector<EnSightElements>& elements() const { return m_elements; }
    void addTo(vtkUnstructuredGrid& grid);

private:
    struct Kind;
    static const Kind s_kinds[];

    void readPlain(const Kind& kind, qint64 count, bool isGhost);
    void readPolygons(qint64 count, bool isGhost);
    void readPolyhedra(qint64 count, bool isGhost);
    void addPolyhedron(const std::int32_t* faceSizes, qint64 faceCount, const std::int32_t*& ids);
    void skipIds(qint64 count);
    std::vector<std::int32_t> sizes(qint64 count, qint64& sum);
    vtkIdType point(std::int32_t id) const;
    void closeCell(int type);

    EnSightStream& m_file;
    const EnSightNodes& m_nodes;
    EnSightIds m_ids;
    std::vector<EnSightElements> m_elements;
    vtkNew<vtkIdTypeArray> m_offsets;
    vtkNew<vtkIdTypeArray> m_corners;
    vtkNew<vtkUnsignedCharArray> m_types;
    vtkNew<vtkIdTypeArray> m_faces; ///< of polyhedra, as vtkUnstructuredGrid has them
    std::vector<vtkIdType> m_polyhedra; ///< numbers of the cells that are polyhedra
    std::vector<vtkIdType> m_facesOfPolyhedra; ///< place of each in the faces
    std::vector<vtkIdType> m_cellOfPoint; ///< the polyhedron that has it already
};

} // namespace corvala::host::io::reader
