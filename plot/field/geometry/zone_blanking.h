// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"
#include "sdk/base/enums.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <tuple>
#include <vector>

namespace corvala::plot {

/// A condition on the values of a zone; NaN never meets one.
struct BlankingTest
{
    std::int64_t variable = 0;
    Relation_e relation = Relation_LessOrEqual;
    std::int64_t comparedVariable = 0; ///< 0: the constant
    double constant = 0.0;

    auto tied() const { return std::tie(variable, relation, comparedVariable, constant); }
};

/// Which cells of a zone are taken away: those that any test names. A test of variables that the
/// zone does not have names none.
struct BlankingChoice
{
    BlankedCells_e cells = BlankedCells_AllPoints;
    std::vector<BlankingTest> tests;

    auto tied() const { return std::tie(cells, tests); }
};

inline bool operator==(const BlankingTest& left, const BlankingTest& right)
{
    return left.tied() == right.tied();
}
inline bool operator<(const BlankingTest& left, const BlankingTest& right)
{
    return left.tied() < right.tied();
}
inline bool operator==(const BlankingChoice& left, const BlankingChoice& right)
{
    return left.tied() == right.tied();
}
inline bool operator<(const BlankingChoice& left, const BlankingChoice& right)
{
    return left.tied() < right.tied();
}

/// Where cells are cut: values at a zone's points, above 0 where they are kept.
using CutFields = std::vector<vtkSmartPointer<vtkDoubleArray>>;

/// Marks cells of `geometry`, the points and cells of a zone, as hidden, besides those that are.
/// What is to be cut stays and is returned; tests of cell values, and for equality, have nothing to
/// cut at and hide cells.
CutFields blank(vtkDataSet& geometry, const host::DataSet& data, std::int64_t zone,
                const BlankingChoice& choice);

/// Hides cells of `geometry` that have a point without a finite value.
void hideCellsWithoutValue(vtkDataSet& geometry, vtkDataArray& pointValues);

} // namespace corvala::plot
