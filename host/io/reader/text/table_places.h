// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/text/table_data.h"

#include <vtkPoints.h>
#include <vtkSmartPointer.h>

#include <array>

namespace corvala::host::io::reader {

/// Columns that say where the points of the rows are: those of X and Y and, if there is one, of Z.
using PlaceColumns = std::array<std::optional<std::size_t>, 3>;

/// Columns of numbers beside each other with names such as "x", "Y [m]", "z-coordinate" or
/// "Points:0"; none of them without X and Y. Nor are there any in tables of more rows than a field
/// plot can show, or with numbers missing.
PlaceColumns placeColumns(const TableData& table, const std::vector<TableColumn>& columns);

/// Points of some rows.
vtkSmartPointer<vtkPoints> placesOf(const TableData& table, const PlaceColumns& columns,
                                    std::size_t firstRow, std::size_t count);

} // namespace corvala::host::io::reader
