// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_cells.h"

#include <QCoreApplication>

#include <vtkCellType.h>

#include <algorithm>
#include <array>

namespace corvala::host::io::reader {

/// A kind of element with a fixed number of corners.
struct EnSightCells::Kind
{
    const char* name;
    int cellType;
    int corners;
    std::array<int, 15> order {}; ///< place of each corner in the cell, where it differs
};

const EnSightCells::Kind EnSightCells::s_kinds[] = {
    {"point", VTK_VERTEX, 1},
    {"bar2", VTK_LINE, 2},
    {"bar3", VTK_QUADRATIC_EDGE, 3},
    {"tria3", VTK_TRIANGLE, 3},
    {"tria6", VTK_QUADRATIC_TRIANGLE, 6},
    {"quad4", VTK_QUAD, 4},
    {"quad8", VTK_QUADRATIC_QUAD, 8},
    {"tetra4", VTK_TETRA, 4},
    {"tetra10", VTK_QUADRATIC_TETRA, 10},
    {"pyramid5", VTK_PYRAMID, 5},
    {"pyramid13", VTK_QUADRATIC_PYRAMID, 13},
    {"hexa8", VTK_HEXAHEDRON, 8},
    {"hexa20", VTK_QUADRATIC_HEXAHEDRON, 20},
    {"penta6", VTK_WEDGE, 6, {0, 2, 1, 3, 5, 4}},
    {"penta15", VTK_QUADRATIC_WEDGE, 15, {0, 2, 1, 3, 5, 4, 8, 7, 6, 11, 10, 9, 12, 14, 13}},
};

static constexpr char kPolygons[] = "nsided";
static constexpr char kPolyhedra[] = "nfaced";

EnSightNodes::EnSightNodes(const std::vector<std::int32_t>& ids)
    : m_count(static_cast<qint64>(ids.size()))
{
    m_pointOfId.reserve(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i)
        m_pointOfId.emplace(ids[i], static_cast<vtkIdType>(i));
}

vtkIdType EnSightNodes::point(std::int32_t id) const
{
    if (m_pointOfId.empty())
        return id >= 1 && id <= m_count ? id - 1 : -1;
    const auto found = m_pointOfId.find(id);
    return found == m_pointOfId.end() ? -1 : found->second;
}

EnSightCells::EnSightCells(EnSightStream& file, const EnSightNodes& nodes, EnSightIds ids)
    : m_file(file)
    , m_nodes(nodes)
    , m_ids(ids)
{
    m_offsets->InsertNextValue(0);
}

void EnSightCells::read(const std::string& name)
{
    const std::string word = name.substr(0, name.find(' '));
    const bool isGhost = word.rfind("g_", 0) == 0;
    const std::string base = isGhost ? word.substr(2) : word;
    const Kind* const kind = std::find_if(std::begin(s_kinds), std::end(s_kinds),
                                          [&](const Kind& each) { return base == each.name; });
    const bool isKnown = kind != std::end(s_kinds) || base == kPolygons || base == kPolyhedra;
    const bool isNew = std::none_of(m_elements.begin(), m_elements.end(),
                                    [&](const EnSightElements& each) { return each.kind == word; });
    if (!isKnown || !isNew)
        m_file.fail(QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" stands where elements are due"),
                    {QString::fromUtf8(name.c_str())});
    const qint64 count = m_file.count();
    skipIds(count);
    m_elements.push_back({word, count, isGhost});
    if (base == kPolygons)
        readPolygons(count, isGhost);
    else if (base == kPolyhedra)
        readPolyhedra(count, isGhost);
    else
        readPlain(*kind, count, isGhost);
}

void EnSightCells::skipIds(qint64 count)
{
    if (m_ids == EnSightIds::Listed)
        m_file.ints(count);
}

vtkIdType EnSightCells::point(std::int32_t id) const
{
    const vtkIdType result = m_nodes.point(id);
    if (result < 0)
        m_file.fail(
            QT_TRANSLATE_NOOP("ReadMessage", "an element has point %1, which does not exist"),
            {QString::number(id)});
    return result;
}

/// The corners were added.
void EnSightCells::closeCell(int type)
{
    m_types->InsertNextValue(static_cast<unsigned char>(type));
    m_offsets->InsertNextValue(m_corners->GetNumberOfValues());
}

void EnSightCells::readPlain(const Kind& kind, qint64 count, bool isGhost)
{
    const int idCount = m_ids == EnSightIds::BesideNodes ? 1 : 0;
    const int stride = kind.corners + idCount;
    const std::vector<std::int32_t> ids = m_file.ints(count * stride);
    const bool isReordered = kind.order[1] != 0;
    vtkIdType corners[20];
    for (qint64 i = 0; i < count && !isGhost; ++i) {
        const std::int32_t* const first = ids.data() + i * stride + idCount;
        for (int c = 0; c < kind.corners; ++c)
            corners[isReordered ? kind.order[static_cast<std::size_t>(c)] : c] = point(first[c]);
        for (int c = 0; c < kind.corners; ++c)
            m_corners->InsertNextValue(corners[c]);
        closeCell(kind.cellType);
    }
}

/// Numbers of what follows for each element, and how many these are together.
std::vector<std::int32_t> EnSightCells::sizes(qint64 count, qint64& sum)
{
    std::vector<std::int32_t> result = m_file.ints(count);
    sum = 0;
    for (const std::int32_t size : result) {
        if (size < 1)
            m_file.fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 is no count"),
                        {QString::number(size)});
        sum += size;
    }
    return result;
}

void EnSightCells::readPolygons(qint64 count, bool isGhost)
{
    qint64 cornerCount = 0;
    const std::vector<std::int32_t> corners = sizes(count, cornerCount);
    const std::vector<std::int32_t> ids = m_file.ints(cornerCount);
    const std::int32_t* id = ids.data();
    for (qint64 i = 0; i < count && !isGhost; ++i) {
        for (std::int32_t c = 0; c < corners[static_cast<std::size_t>(i)]; ++c)
            m_corners->InsertNextValue(point(*id++));
        closeCell(VTK_POLYGON);
    }
}

void EnSightCells::readPolyhedra(qint64 count, bool isGhost)
{
    qint64 faceCount = 0;
    qint64 cornerCount = 0;
    const std::vector<std::int32_t> faces = sizes(count, faceCount);
    const std::vector<std::int32_t> corners = sizes(faceCount, cornerCount);
    const std::vector<std::int32_t> ids = m_file.ints(cornerCount);
    const std::int32_t* face = corners.data();
    const std::int32_t* id = ids.data();
    m_cellOfPoint.resize(static_cast<std::size_t>(m_nodes.count()), -1);
    for (qint64 i = 0; i < count && !isGhost; ++i) {
        const std::int32_t facesOfCell = faces[static_cast<std::size_t>(i)];
        addPolyhedron(face, facesOfCell, id);
        face += facesOfCell;
    }
}

/// Moves `ids` on past the corners of its faces.
void EnSightCells::addPolyhedron(const std::int32_t* faceSizes, qint64 faceCount,
                                 const std::int32_t*& ids)
{
    const vtkIdType cell = m_types->GetNumberOfValues();
    m_polyhedra.push_back(cell);
    m_facesOfPolyhedra.push_back(m_faces->GetNumberOfValues());
    m_faces->InsertNextValue(faceCount);
    for (qint64 face = 0; face < faceCount; ++face) {
        m_faces->InsertNextValue(faceSizes[face]);
        for (std::int32_t c = 0; c < faceSizes[face]; ++c) {
            const vtkIdType corner = point(*ids++);
            m_faces->InsertNextValue(corner);
            if (std::exchange(m_cellOfPoint[static_cast<std::size_t>(corner)], cell) != cell)
                m_corners->InsertNextValue(corner);
        }
    }
    closeCell(VTK_POLYHEDRON);
}

void EnSightCells::addTo(vtkUnstructuredGrid& grid)
{
    vtkNew<vtkCellArray> cells;
    cells->SetData(m_offsets, m_corners);
    if (m_polyhedra.empty()) {
        grid.SetCells(m_types, cells);
        return;
    }
    vtkNew<vtkIdTypeArray> places;
    places->SetNumberOfValues(m_types->GetNumberOfValues());
    places->FillValue(-1);
    for (std::size_t i = 0; i < m_polyhedra.size(); ++i)
        places->SetValue(m_polyhedra[i], m_facesOfPolyhedra[i]);
    grid.SetCells(m_types, cells, places, m_faces);
}

} // namespace corvala::host::io::reader
