// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <QSet>
#include <QString>

#include <vtkSmartPointer.h>

namespace corvala::host::io::reader {

/// Makes zones as they are handed over: only arrays of numbers that fit their points or cells,
/// under clean names.
class ZoneCleaner
{
public:
    /// It shares points, cells and values with the original, and is good until the next one is
    /// made.
    vtkDataSet& clean(vtkDataSet& zone);
    const QSet<QString>& droppedArrays() const { return m_droppedArrays; }

private:
    vtkSmartPointer<vtkDataSet> m_zone;
    QSet<QString> m_droppedArrays;
};

/// Kind, dimensions and counts of a zone.
ZoneInfo zoneInfo(vtkDataSet& zone);

} // namespace corvala::host::io::reader
