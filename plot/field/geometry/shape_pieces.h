// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <vector>

namespace corvala::plot {

/// Geometry in pieces of bounded size, each of which is drawn in one go; in the order in which they
/// are drawn. None when there is nothing to draw.
using ShapePieces = std::vector<vtkSmartPointer<vtkPolyData>>;

/// Cost of a piece at most, unless it is a single cell, in corners of faces: a software renderer
/// draws as many in a tenth of a second.
constexpr vtkIdType kLargestPiece = 300'000;

constexpr vtkIdType kPointsPerSymbol = 4; ///< what a symbol costs, in points

/// What drawing the shape costs: corners of faces; one of a line counts as two, a point as four.
vtkIdType shapeCost(vtkPolyData& shape);

/// The cells of the shape in their order, with the values of their points. A shape that is no
/// larger than a piece is the piece. Values of cells are dropped from larger ones.
ShapePieces inPieces(vtkPolyData& shape, vtkIdType largest = kLargestPiece);

} // namespace corvala::plot
