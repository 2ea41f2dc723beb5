// SPDX-License-Identifier: BSD-3-Clause
#include "reading_files.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLMultiBlockDataWriter.h>
#include <vtkXMLUnstructuredGridWriter.h>

#include <cmath>

namespace corvala::bench {

static vtkSmartPointer<vtkFloatArray> numbers(const char* name, int components, vtkIdType tuples)
{
    auto array = vtkSmartPointer<vtkFloatArray>::New();
    array->SetName(name);
    array->SetNumberOfComponents(components);
    array->SetNumberOfTuples(tuples);
    for (vtkIdType i = 0; i < tuples * components; ++i)
        array->SetValue(i, static_cast<float>(std::sin(0.001 * static_cast<double>(i))));
    return array;
}

/// A cube of `side` points in each direction, `number` cubes along X.
static vtkSmartPointer<vtkPoints> cube(int side, int number)
{
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetNumberOfPoints(vtkIdType(side) * side * side);
    for (int k = 0; k < side; ++k)
        for (int j = 0; j < side; ++j)
            for (int i = 0; i < side; ++i)
                points->SetPoint((vtkIdType(k) * side + j) * side + i, number * side + i, j, k);
    return points;
}

static vtkSmartPointer<vtkStructuredGrid> block(int side, int number)
{
    auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(side, side, side);
    grid->SetPoints(cube(side, number));
    grid->GetPointData()->AddArray(numbers("pressure", 1, grid->GetNumberOfPoints()));
    grid->GetPointData()->AddArray(numbers("velocity", 3, grid->GetNumberOfPoints()));
    return grid;
}

QString writeBlocks(const QDir& folder, int count, int side)
{
    const vtkNew<vtkMultiBlockDataSet> tree;
    for (int i = 0; i < count; ++i)
        tree->SetBlock(static_cast<unsigned>(i), block(side, i));
    const QString path = folder.filePath(QStringLiteral("%1.vtm").arg(count));
    const vtkNew<vtkXMLMultiBlockDataWriter> writer;
    writer->SetInputData(tree);
    writer->SetFileName(qPrintable(path));
    writer->Write();
    return path;
}

static vtkSmartPointer<vtkCellArray> hexahedra(int side)
{
    auto cells = vtkSmartPointer<vtkCellArray>::New();
    const vtkIdType count = vtkIdType(side) * side * side;
    cells->AllocateExact(count, 8 * count);
    const vtkIdType row = side + 1;
    const vtkIdType layer = row * row;
    for (int k = 0; k < side; ++k)
        for (int j = 0; j < side; ++j)
            for (int i = 0; i < side; ++i) {
                const vtkIdType first = k * layer + j * row + i;
                const vtkIdType corners[] = {
                    first,         first + 1,         first + 1 + row,         first + row,
                    first + layer, first + layer + 1, first + layer + 1 + row, first + layer + row};
                cells->InsertNextCell(8, corners);
            }
    return cells;
}

QString writeHexahedra(const QDir& folder, int side)
{
    const vtkNew<vtkUnstructuredGrid> grid;
    grid->SetPoints(cube(side + 1, 0));
    grid->SetCells(VTK_HEXAHEDRON, hexahedra(side));
    grid->GetPointData()->AddArray(numbers("pressure", 1, grid->GetNumberOfPoints()));
    const QString path = folder.filePath(QStringLiteral("%1.vtu").arg(side));
    const vtkNew<vtkXMLUnstructuredGridWriter> writer;
    writer->SetInputData(grid);
    writer->SetFileName(qPrintable(path));
    writer->EncodeAppendedDataOff();
    writer->SetCompressorTypeToNone();
    writer->Write();
    return path;
}

} // namespace corvala::bench
