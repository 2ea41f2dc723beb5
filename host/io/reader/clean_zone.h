// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <QSet>
#include <QString>

#include <vtkSmartPointer.h>

namespace corvala::host::io::reader {

/// A zone as it is handed over: only arrays of numbers that fit its points or cells, under clean
/// names. It shares points, cells and values with the original.
vtkSmartPointer<vtkDataSet> cleanZone(vtkDataSet& zone, QSet<QString>& droppedArrays);

/// Kind, dimensions and counts of a zone.
ZoneInfo zoneInfo(vtkDataSet& zone);

} // namespace corvala::host::io::reader
