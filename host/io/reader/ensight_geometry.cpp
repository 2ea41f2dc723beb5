// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_geometry.h"

#include "host/io/reader/ensight_cells.h"

#include <QCoreApplication>

#include <vtkDataSetAttributes.h>
#include <vtkFloatArray.h>
#include <vtkImageData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkStructuredGrid.h>

#include <limits>
#include <set>
#include <sstream>

namespace corvala::host::io::reader {

static constexpr int kParticles = -1; ///< in place of a part number

/// What stands before the parts.
struct Preamble
{
    std::string nodeIds; ///< "off", "given", "assign" or "ignore"
    std::string elementIds;

    static bool areListed(const std::string& ids) { return ids == "given" || ids == "ignore"; }
};

static std::vector<std::string> wordsOf(const std::string& line)
{
    std::istringstream stream(line);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// What "node id ..." or "element id ..." says, which is among the next lines.
static std::string idsOf(EnSightStream& file, const char* what)
{
    constexpr int kMostLines = 8; // of description
    for (int i = 0; i < kMostLines; ++i) {
        const std::vector<std::string> words = wordsOf(file.line());
        if (words.size() >= 3 && words[0] == what && words[1] == "id")
            return words[2];
    }
    file.fail(QT_TRANSLATE_NOOP("ReadMessage", "the line \"%1 id\" is missing"),
              {QString::fromLatin1(what)});
}

/// It begins with lines of description.
static Preamble readPreamble(EnSightStream& file)
{
    Preamble result;
    result.nodeIds = idsOf(file, "node");
    result.elementIds = idsOf(file, "element");
    return result;
}

static vtkSmartPointer<vtkPoints> pointsOf(qint64 count, const std::vector<float> (&axes)[3])
{
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetNumberOfPoints(count);
    for (qint64 i = 0; i < count; ++i) {
        const auto n = static_cast<std::size_t>(i);
        points->SetPoint(i, axes[0][n], axes[1][n], axes[2][n]);
    }
    return points;
}

/// All X, then all Y, then all Z.
static vtkSmartPointer<vtkPoints> readPointsByAxis(EnSightStream& file, qint64 count)
{
    const std::vector<float> axes[] = {file.floats(count), file.floats(count), file.floats(count)};
    return pointsOf(count, axes);
}

/// The words after "block", and the numbers of points.
struct BlockHead
{
    std::set<std::string> words;
    int size[3];
    qint64 count = 1;
};

static BlockHead readBlockHead(EnSightStream& file, const std::string& line)
{
    static const std::set<std::string> known {"block", "rectilinear", "uniform", "curvilinear",
                                              "iblanked"};
    BlockHead head;
    for (const std::string& word : wordsOf(line))
        if (known.count(word) > 0)
            head.words.insert(word);
        else
            file.fail(QT_TRANSLATE_NOOP("ReadMessage", "a block with \"%1\" cannot be read"),
                      {QString::fromUtf8(word.c_str())});
    const std::vector<std::int32_t> size = file.ints(3);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        head.size[axis] = size[axis];
        if (size[axis] < 0 || head.count > std::numeric_limits<std::int32_t>::max())
            file.fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 is no count"),
                      {QString::number(size[axis])});
        head.count *= size[axis];
    }
    return head;
}

static vtkSmartPointer<vtkFloatArray> readAxis(EnSightStream& file, int count)
{
    const std::vector<float> values = file.floats(count);
    auto axis = vtkSmartPointer<vtkFloatArray>::New();
    axis->SetNumberOfValues(count);
    std::copy(values.begin(), values.end(), axis->GetPointer(0));
    return axis;
}

static vtkSmartPointer<vtkDataSet> readRectilinear(EnSightStream& file, const BlockHead& head)
{
    auto grid = vtkSmartPointer<vtkRectilinearGrid>::New();
    grid->SetDimensions(head.size);
    grid->SetXCoordinates(readAxis(file, head.size[0]));
    grid->SetYCoordinates(readAxis(file, head.size[1]));
    grid->SetZCoordinates(readAxis(file, head.size[2]));
    return grid;
}

static vtkSmartPointer<vtkDataSet> readUniform(EnSightStream& file, const BlockHead& head)
{
    auto grid = vtkSmartPointer<vtkImageData>::New();
    const std::vector<float> origin = file.floats(3);
    const std::vector<float> spacing = file.floats(3);
    grid->SetDimensions(head.size);
    grid->SetOrigin(origin[0], origin[1], origin[2]);
    grid->SetSpacing(spacing[0], spacing[1], spacing[2]);
    return grid;
}

static vtkSmartPointer<vtkDataSet> readCurvilinear(EnSightStream& file, const BlockHead& head)
{
    auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(head.size);
    grid->SetPoints(readPointsByAxis(file, head.count));
    return grid;
}

/// Points with a blanking value of 0 are not shown.
static void readBlanking(EnSightStream& file, qint64 count, vtkDataSet& grid)
{
    const std::vector<std::int32_t> blanking = file.ints(count);
    vtkUnsignedCharArray& ghosts = *grid.AllocatePointGhostArray();
    for (qint64 i = 0; i < count; ++i)
        if (blanking[static_cast<std::size_t>(i)] == 0)
            ghosts.SetValue(i, vtkDataSetAttributes::HIDDENPOINT);
}

/// A block after its first line. Returns the line after it, if there is one.
static std::optional<std::string> readBlock(EnSightStream& file, const std::string& line,
                                            EnSightPart& part)
{
    const BlockHead head = readBlockHead(file, line);
    part.isBlock = true;
    part.grid = head.words.count("rectilinear") > 0 ? readRectilinear(file, head)
        : head.words.count("uniform") > 0           ? readUniform(file, head)
                                                    : readCurvilinear(file, head);
    if (head.words.count("iblanked") > 0)
        readBlanking(file, head.count, *part.grid);
    std::optional<std::string> next = file.keyword();
    for (const auto& [name, count] : {std::pair<const char*, qint64>("node_ids", head.count),
                                      {"element_ids", part.grid->GetNumberOfCells()}})
        if (next == name) {
            file.ints(count);
            next = file.keyword();
        }
    return next;
}

static bool beginsPart(const std::optional<std::string>& line)
{
    return line && line->rfind("part", 0) == 0;
}

/// Elements from the line that names their kind. Returns the line after them, if there is one.
static std::optional<std::string> readElements(EnSightStream& file, const EnSightNodes& nodes,
                                               vtkPoints* points, EnSightIds ids,
                                               std::optional<std::string> line, EnSightPart& part)
{
    EnSightCells cells(file, nodes, ids);
    for (; line && !beginsPart(line); line = file.keyword())
        cells.read(*line);
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    cells.addTo(*grid);
    part.grid = grid;
    part.elements = cells.elements();
    return line;
}

/// A part without coordinates is empty.
static std::optional<std::string> readGoldMesh(EnSightStream& file, const Preamble& preamble,
                                               std::optional<std::string> line, EnSightPart& part)
{
    qint64 count = 0;
    vtkSmartPointer<vtkPoints> points = vtkSmartPointer<vtkPoints>::New();
    if (line && line->rfind("coordinates", 0) == 0) {
        count = file.count();
        if (Preamble::areListed(preamble.nodeIds))
            file.ints(count);
        points = readPointsByAxis(file, count);
        line = file.keyword();
    }
    const EnSightIds ids =
        Preamble::areListed(preamble.elementIds) ? EnSightIds::Listed : EnSightIds::None;
    return readElements(file, EnSightNodes(count), points, ids, line, part);
}

static void requireNewNumber(EnSightStream& file, std::set<int>& numbers, int number)
{
    if (number < 0 || !numbers.insert(number).second)
        file.fail(QT_TRANSLATE_NOOP("ReadMessage", "part %1 stands in it twice, or is no part"),
                  {QString::number(number)});
}

[[noreturn]] static void failOfLine(EnSightStream& file, const std::string& line)
{
    file.fail(QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" stands in the place of \"%2\""),
              {QString::fromUtf8(line.c_str()), QStringLiteral("part")});
}

std::vector<EnSightPart> readGoldGeometry(EnSightStream& file)
{
    const Preamble preamble = readPreamble(file);
    std::optional<std::string> line = file.keyword();
    if (line == "extents") {
        file.floats(6);
        line = file.keyword();
    }
    std::vector<EnSightPart> parts;
    std::set<int> numbers;
    while (line) {
        if (!beginsPart(line))
            failOfLine(file, *line);
        EnSightPart part;
        part.number = file.oneInt();
        requireNewNumber(file, numbers, part.number);
        part.name = file.line();
        line = file.keyword();
        line = line && line->rfind("block", 0) == 0 ? readBlock(file, *line, part)
                                                    : readGoldMesh(file, preamble, line, part);
        parts.push_back(std::move(part));
    }
    return parts;
}

/// Each point's coordinates together; in text, the point's number stands before them.
static EnSightNodes readSharedPoints(EnSightStream& file, const Preamble& preamble,
                                     vtkPoints& points)
{
    const qint64 count = file.count();
    const bool areListed = Preamble::areListed(preamble.nodeIds);
    std::vector<std::int32_t> ids;
    points.SetNumberOfPoints(count);
    if (areListed && !file.isText())
        ids = file.ints(count);
    for (qint64 i = 0; i < count && file.isText(); ++i) {
        if (areListed)
            ids.push_back(file.oneInt());
        float place[3];
        file.floats(place, 3);
        points.SetPoint(i, place);
    }
    if (!file.isText())
        file.floats(vtkFloatArray::SafeDownCast(points.GetData())->GetPointer(0), 3 * count);
    return preamble.nodeIds == "given" ? EnSightNodes(ids) : EnSightNodes(count);
}

std::vector<EnSightPart> readEnSight6Geometry(EnSightStream& file)
{
    const Preamble preamble = readPreamble(file);
    file.expect("coordinates");
    vtkNew<vtkPoints> points;
    const EnSightNodes nodes = readSharedPoints(file, preamble, *points);
    const EnSightIds ids = !Preamble::areListed(preamble.elementIds) ? EnSightIds::None
        : file.isText()                                              ? EnSightIds::BesideNodes
                                                                     : EnSightIds::Listed;
    std::vector<EnSightPart> parts;
    std::set<int> numbers;
    std::optional<std::string> line = file.keyword();
    while (line) {
        if (!beginsPart(line))
            failOfLine(file, *line);
        EnSightPart part;
        part.number = QString::fromUtf8(line->c_str() + 4).toInt();
        requireNewNumber(file, numbers, part.number);
        part.name = file.line();
        line = file.keyword();
        line = line && line->rfind("block", 0) == 0
            ? readBlock(file, *line, part)
            : readElements(file, nodes, points, ids, line, part);
        if (!part.isBlock && part.elements.empty()) // its points are those of other parts
            part.grid->Initialize();
        parts.push_back(std::move(part));
    }
    return parts;
}

EnSightPart readParticles(EnSightStream& file)
{
    file.line();
    file.expect("particle coordinates");
    const qint64 count = file.count();
    vtkNew<vtkPoints> points;
    points->SetNumberOfPoints(count);
    float* const places = vtkFloatArray::SafeDownCast(points->GetData())->GetPointer(0);
    if (!file.isText()) {
        file.ints(count);
        file.floats(places, 3 * count);
    }
    for (qint64 i = 0; i < count && file.isText(); ++i) {
        file.oneInt();
        file.floats(places + 3 * i, 3);
    }
    if (const std::optional<std::string> line = file.keyword())
        failOfLine(file, *line);
    vtkNew<vtkCellArray> vertices;
    for (vtkIdType i = 0; i < count; ++i)
        vertices->InsertNextCell(1, &i);
    auto grid = vtkSmartPointer<vtkPolyData>::New();
    grid->SetPoints(points);
    grid->SetVerts(vertices);
    return {kParticles, "Particles", false, {}, grid};
}

} // namespace corvala::host::io::reader
