// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/obj_reader.h"

#include "host/io/reader/corner_values.h"
#include "host/io/reader/numbered_words.h"
#include "host/io/reader/obj_lines.h"
#include "host/io/reader/read_failure.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIntArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

namespace corvala::host::io::reader {

static constexpr char kGroups[] = "GroupIds";
static constexpr char kMaterials[] = "MaterialIds";

/// Cells of one kind.
struct ObjCells
{
    std::size_t leastCorners;
    vtkSmartPointer<vtkIdTypeArray> starts = vtkSmartPointer<vtkIdTypeArray>::New();
    vtkSmartPointer<vtkIdTypeArray> points = vtkSmartPointer<vtkIdTypeArray>::New();
    std::vector<int> groups {};
    std::vector<int> materials {};

    vtkSmartPointer<vtkCellArray> cells() const
    {
        auto result = vtkSmartPointer<vtkCellArray>::New();
        starts->InsertNextValue(points->GetNumberOfValues());
        result->SetData(starts, points);
        return result;
    }
};

static std::string_view trimmed(std::string_view text)
{
    static constexpr char kBlank[] = " \t\r";
    const std::size_t begin = std::min(text.find_first_not_of(kBlank), text.size());
    return text.substr(begin, text.find_last_not_of(kBlank) + 1 - begin);
}

/// What has no effect on the surface.
static bool isPassedOver(std::string_view key)
{
    static constexpr std::string_view kKeys[] = {
        "o",     "s",      "mtllib",   "usemap",   "maplib",     "mg",        "lod",
        "bevel", "vp",     "c_interp", "d_interp", "shadow_obj", "trace_obj", "ctech",
        "stech", "cstype", "deg",      "bmat",     "step",       "parm",      "trim",
        "hole",  "scrv",   "sp",       "end",      "con"};
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

/// Numbers that corners name, with the last of them.
struct ObjValues : CornerValues
{
    std::int64_t last = 0; ///< counted from 1
    std::int64_t line = 0; ///< that names it
};

/// The names that cells have, numbered in the order in which they first come.
class ObjNames
{
public:
    void take(std::string_view name)
    {
        const auto next = static_cast<int>(m_names.size());
        const auto [place, isNew] = m_numbers.emplace(name, next);
        if (isNew)
            m_names.emplace_back(name);
        m_current = place->second;
    }

    /// Of the next cell, which may have none.
    int current()
    {
        if (m_current < 0)
            take({});
        return m_current;
    }

    bool hasNames() const { return m_numbers.count({}) < m_names.size(); }
    const std::vector<std::string>& names() const { return m_names; }

private:
    std::map<std::string, int, std::less<>> m_numbers;
    std::vector<std::string> m_names; ///< by number
    int m_current = -1;
};

/// Reads a file line by line.
class ObjParser
{
public:
    ObjParser(const MappedFile& file, const ProgressCall& progress)
        : m_file(file)
        , m_lines(file.bytes())
        , m_progress(progress)
    {
        m_points->SetNumberOfComponents(3);
        m_textures.values->SetName("TCoords");
        m_textures.values->SetNumberOfComponents(2);
        m_normals.values->SetName("Normals");
        m_normals.values->SetNumberOfComponents(3);
    }

    SurfaceData parse()
    {
        constexpr std::int64_t kLinesOfStep = 1 << 16;
        const auto size = static_cast<double>(m_file.bytes().size());
        while (m_lines.next()) {
            readLine();
            if (m_lines.number() % kLinesOfStep == 0)
                m_progress(1.0 - static_cast<double>(m_lines.bytesLeft()) / size);
        }
        requirePoints();
        SurfaceData result;
        for (ObjValues* const values : {&m_textures, &m_normals}) {
            checkNames(*values);
            if (!values->fault.isEmpty())
                result.withoutValues[QString::fromLatin1(values->values->GetName())] =
                    values->fault;
        }
        if (m_strayCount > 0)
            result.leftOver = strayLines();
        result.data = surface();
        if (m_groups.hasNames())
            result.numberedNames << numberedWords(kGroups, m_groups.names(), 0);
        if (m_materials.hasNames())
            result.numberedNames << numberedWords(kMaterials, m_materials.names(), 0);
        return result;
    }

private:
    /// What is wrong with the last line, when it has no end, is that it is cut off.
    void readLine()
    {
        try {
            std::string_view rest = m_lines.text();
            const std::string_view key = takeWord(rest);
            readLine(key, rest);
        } catch (const ReadFailure&) {
            if (!m_lines.isOpen())
                throw;
            leaveOut();
        }
    }

    void readLine(std::string_view key, std::string_view rest)
    {
        if (key == "v")
            addPoint(rest);
        else if (key == "vt")
            addValue(rest, m_textures, 1);
        else if (key == "vn")
            addValue(rest, m_normals, 3);
        else if (key == "f" || key == "fo")
            addCell(rest, m_faces);
        else if (key == "l")
            addCell(rest, m_curves);
        else if (key == "p")
            addCell(rest, m_singles);
        else if (key == "g")
            m_groups.take(trimmed(rest));
        else if (key == "usemtl")
            m_materials.take(takeWord(rest));
        else if (!key.empty() && !isPassedOver(key))
            leaveOut();
    }

    [[noreturn]] void fail(const char* reason, std::int64_t line, const QString& text) const
    {
        throw ReadFailure(m_file.path(), reason, {QString::number(line), text});
    }

    [[noreturn]] void failPoint(std::int64_t line, std::int64_t point) const
    {
        fail(QT_TRANSLATE_NOOP("ReadMessage", "line %1 names point %2, which is not there"), line,
             QString::number(point));
    }

    void leaveOut()
    {
        if (m_strayCount++ == 0) {
            m_stray = m_lines.shown();
            m_strayLine = m_lines.number();
        }
    }

    ReadMessage strayLines() const
    {
        const QString line = QString::number(m_strayLine);
        if (m_strayCount == 1)
            return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "line %1: \"%2\""),
                               {line, m_stray});
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "line %1: \"%2\", and %3 lines more"),
                           {line, m_stray, QString::number(m_strayCount - 1)});
    }

    void addPoint(std::string_view rest)
    {
        double place[3];
        if (takeNumbers(rest, 3, place) < 3)
            fail(QT_TRANSLATE_NOOP("ReadMessage", "line %1 has no three coordinates: \"%2\""),
                 m_lines.number(), m_lines.shown());
        m_points->InsertNextTypedTuple(place);
    }

    void addValue(std::string_view rest, ObjValues& target, int least)
    {
        double numbers[3] = {0, 0, 0};
        const int count = target.values->GetNumberOfComponents();
        if (takeNumbers(rest, count, numbers) < least)
            setFault(target, QT_TRANSLATE_NOOP("ReadMessage", "line %1: \"%2\""), m_lines.number(),
                     m_lines.shown());
        for (int i = 0; i < count; ++i)
            target.values->InsertNextValue(static_cast<float>(numbers[i]));
    }

    static void setFault(ObjValues& values, const char* reason, std::int64_t line,
                         const QString& text)
    {
        if (values.fault.isEmpty())
            values.fault = ReadMessage(reason, {QString::number(line), text});
    }

    void addCell(std::string_view rest, ObjCells& cells)
    {
        m_corners.clear();
        for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
            m_corners.emplace_back();
            if (!parseCorner(word, m_corners.back()))
                fail(QT_TRANSLATE_NOOP("ReadMessage", "line %1: \"%2\" names no point"),
                     m_lines.number(),
                     QString::fromUtf8(word.data(), static_cast<int>(word.size())));
            requirePoint(m_corners.back());
        }
        if (m_corners.size() < cells.leastCorners)
            return leaveOut();
        const std::size_t size = &cells == &m_singles ? 1 : m_corners.size();
        for (std::size_t first = 0; first < m_corners.size(); first += size)
            append(cells, m_corners.data() + first, size);
    }

    void append(ObjCells& cells, const ObjCorner* corners, std::size_t count)
    {
        cells.groups.push_back(m_groups.current());
        cells.materials.push_back(m_materials.current());
        cells.starts->InsertNextValue(cells.points->GetNumberOfValues());
        for (std::size_t i = 0; i < count; ++i) {
            if (&cells == &m_faces) {
                addName(m_textures, corners[i].texture);
                addName(m_normals, corners[i].normal);
            }
            cells.points->InsertNextValue(corners[i].point - 1);
        }
    }

    /// Counts from the front what counts back from the last point. Points may follow.
    void requirePoint(ObjCorner& corner)
    {
        const std::int64_t named = corner.point;
        if (named < 0)
            corner.point += m_points->GetNumberOfTuples() + 1;
        if (corner.point <= 0)
            failPoint(m_lines.number(), named);
        if (corner.point > m_lastPoint) {
            m_lastPoint = corner.point;
            m_lastPointLine = m_lines.number();
        }
    }

    void requirePoints() const
    {
        const vtkIdType count = m_points->GetNumberOfTuples();
        if (count == 0 && m_strayCount > 0)
            fail(QT_TRANSLATE_NOOP("ReadMessage", "line %1 is none of an OBJ file: \"%2\""),
                 m_strayLine, m_stray);
        if (count == 0)
            throw ReadFailure(m_file.path(),
                              QT_TRANSLATE_NOOP("ReadMessage", "there are no points in it"));
        if (m_lastPoint > count)
            failPoint(m_lastPointLine, m_lastPoint);
    }

    /// What the next corner of a face names. It may follow.
    void addName(ObjValues& values, std::int64_t named)
    {
        std::vector<std::int32_t>& ofCorner = values.ofCorner;
        if (named == 0 && ofCorner.empty())
            return;
        std::int64_t number = named;
        if (named < 0)
            number += values.values->GetNumberOfTuples() + 1;
        if (named < 0 && number <= 0)
            setFault(values, missingValue(), m_lines.number(), QString::number(named));
        if (number > values.last) {
            values.last = number;
            values.line = m_lines.number();
        }
        ofCorner.resize(static_cast<std::size_t>(m_faces.points->GetNumberOfValues()), -1);
        ofCorner.push_back(
            static_cast<std::int32_t>(std::clamp<std::int64_t>(number, 0, INT32_MAX) - 1));
    }

    static const char* missingValue()
    {
        return QT_TRANSLATE_NOOP("ReadMessage",
                                 "line %1 names number %2 of them, which is not there");
    }

    static void checkNames(ObjValues& values)
    {
        if (values.last > values.values->GetNumberOfTuples())
            setFault(values, missingValue(), values.line, QString::number(values.last));
    }

    vtkSmartPointer<vtkPolyData> surface()
    {
        splitPoints(*m_points, *m_faces.points, {&m_textures, &m_normals});
        auto data = vtkSmartPointer<vtkPolyData>::New();
        auto points = vtkSmartPointer<vtkPoints>::New();
        points->SetData(m_points);
        data->SetPoints(points);
        data->SetVerts(m_singles.cells());
        data->SetLines(m_curves.cells());
        data->SetPolys(m_faces.cells());
        for (const ObjValues* const values : {&m_textures, &m_normals})
            if (values->values->GetNumberOfTuples() > 0)
                data->GetPointData()->AddArray(values->values);
        if (m_groups.hasNames())
            data->GetCellData()->AddArray(numbers(kGroups, &ObjCells::groups));
        if (m_materials.hasNames())
            data->GetCellData()->AddArray(numbers(kMaterials, &ObjCells::materials));
        return data;
    }

    /// In the order in which a surface has its cells.
    vtkSmartPointer<vtkIntArray> numbers(const char* name, std::vector<int> ObjCells::*ofKind) const
    {
        auto result = vtkSmartPointer<vtkIntArray>::New();
        result->SetName(name);
        for (const ObjCells* const cells : {&m_singles, &m_curves, &m_faces})
            for (const int number : cells->*ofKind)
                result->InsertNextValue(number);
        return result;
    }

    const MappedFile& m_file;
    ObjLines m_lines;
    const ProgressCall& m_progress;
    vtkSmartPointer<vtkDoubleArray> m_points = vtkSmartPointer<vtkDoubleArray>::New();
    ObjValues m_textures;
    ObjValues m_normals;
    ObjCells m_singles {1};
    ObjCells m_curves {2};
    ObjCells m_faces {3};
    std::vector<ObjCorner> m_corners; ///< of a cell
    ObjNames m_groups;
    ObjNames m_materials;
    std::int64_t m_lastPoint = 0; ///< that is named, counted from 1
    std::int64_t m_lastPointLine = 0;
    QString m_stray; ///< the first line that means nothing
    std::int64_t m_strayLine = 0;
    std::int64_t m_strayCount = 0;
};

SurfaceData readObj(const MappedFile& file, const ProgressCall& progress)
{
    return ObjParser(file, progress).parse();
}

} // namespace corvala::host::io::reader
