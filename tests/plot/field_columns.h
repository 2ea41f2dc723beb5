// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace corvala::tests {

/// A zone of each kind in the data of openColumnsData; beside each stands another of its kind.
enum Zone { Ordered = 1, OrderedSheet = 2, Triangles = 4, Hexahedra = 7 };

/// A value that is changed, and in which states: with `before` it shows in the part of its zone,
/// and with one of `grey`, between bars, besides, its cell in the tables is grey.
struct Column
{
    QString change;
    Zone zone;
    QString before;
    QString grey;
};

/// A change, and more, of every column of the field tables.
std::vector<Column> fieldColumns();

/// Opens so many zones with the style in which the states of the columns are counted.
void openColumnsData(std::int64_t zones);

} // namespace corvala::tests
