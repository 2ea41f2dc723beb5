// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_places.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostRows = 10'000'000;

/// Names of columns with the coordinate X, Y or Z.
static std::array<QRegularExpression, 3> coordinateNames()
{
    std::array<QRegularExpression, 3> names;
    for (int axis = 0; axis < 3; ++axis) {
        const QString pattern =
            QStringLiteral(R"(^(%1([-_ ]?coord(inate)?)?|points[:_ ]%2)\s*([\[(].*)?$)");
        names[static_cast<std::size_t>(axis)] =
            QRegularExpression(pattern.arg(QLatin1Char("xyz"[axis])).arg(axis),
                               QRegularExpression::CaseInsensitiveOption);
    }
    return names;
}

static bool areFinite(const std::vector<double>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::isfinite(number); });
}

PlaceColumns placeColumns(const TableData& table, const std::vector<TableColumn>& columns)
{
    const std::array<QRegularExpression, 3> names = coordinateNames();
    const auto isPlace = [&](std::size_t column, std::size_t axis) {
        return column < columns.size() && columns[column].kind == CellKind::Number
            && names[axis].match(QString::fromStdString(columns[column].name)).hasMatch()
            && areFinite(table.columns[column].numbers);
    };
    PlaceColumns places;
    if (table.rowCount > kMostRows)
        return places;
    for (std::size_t c = 0; c < columns.size() && !places[0]; ++c) {
        if (!isPlace(c, 0) || !isPlace(c + 1, 1))
            continue;
        places = {c, c + 1, std::nullopt};
        if (isPlace(c + 2, 2))
            places[2] = c + 2;
    }
    return places;
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
