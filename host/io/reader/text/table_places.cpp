// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_places.h"

#include "host/io/reader/vector_proposal.h"

#include <algorithm>
#include <cmath>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostRows = 10'000'000;
static constexpr const char* kNames[] = {
    R"(^(x([-_ ]?coord(inate)?)?|points[:_ ]0)\s*([\[(].*)?$)",
    R"(^(y([-_ ]?coord(inate)?)?|points[:_ ]1)\s*([\[(].*)?$)",
    R"(^(z([-_ ]?coord(inate)?)?|points[:_ ]2)\s*([\[(].*)?$)"};

static bool areFinite(const std::vector<double>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::isfinite(number); });
}

PlaceColumns placeColumns(const TableData& table, const std::vector<TableColumn>& columns)
{
    PlaceColumns places;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto found =
            std::find_if(columns.begin(), columns.end(), [axis](const TableColumn& column) {
                return column.kind == CellKind::Number && matches(column.name, kNames[axis]);
            });
        if (found != columns.end())
            places[axis] = static_cast<std::size_t>(found - columns.begin());
    }
    const bool areUsable =
        std::all_of(places.begin(), places.end(), [&](const std::optional<std::size_t>& column) {
            return !column || areFinite(table.columns[*column].numbers);
        });
    return places[0] && places[1] && areUsable && table.rowCount <= kMostRows ? places
                                                                              : PlaceColumns();
}

vtkSmartPointer<vtkPoints> placesOf(const TableData& table, const PlaceColumns& columns,
                                    std::size_t firstRow, std::size_t count)
{
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataTypeToDouble();
    points->SetNumberOfPoints(static_cast<vtkIdType>(count));
    const auto value = [&](std::size_t axis, std::size_t row) {
        return columns[axis] ? table.columns[*columns[axis]].numbers[row] : 0.0;
    };
    for (std::size_t i = 0; i < count; ++i)
        points->SetPoint(static_cast<vtkIdType>(i), value(0, firstRow + i), value(1, firstRow + i),
                         value(2, firstRow + i));
    return points;
}

} // namespace corvala::host::io::reader
