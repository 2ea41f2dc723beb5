// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/reader/cgns_boundary.h"

#include <QString>

#include <vector>

class vtkMultiBlockDataSet;

namespace corvala::host::io::reader {

/// Adds the boundary patches of a CGNS file to what VTK reads of it.
class CgnsPatches
{
public:
    /// All patches of the file, or none of them.
    CgnsPatches(const QString& path, bool areWanted);

    /// Adds a block for each patch, named after its zone and its family or, without one, itself: a
    /// part of its zone, with values of the points, and of the cells that it bounds. `root` holds
    /// the bases, and these the zones.
    void addTo(vtkMultiBlockDataSet& root);

    std::int64_t unreadCount() const { return m_unreadCount; }
    /// Which were left out, and why.
    const std::vector<ReadMessage>& notes() const { return m_notes; }

private:
    void leaveOut(const BoundaryPatch& patch, const ReadMessage& fault);

    QString m_fileName;
    std::vector<BoundaryPatch> m_patches; ///< those that can be shown
    std::vector<ReadMessage> m_notes;
    std::int64_t m_unreadCount = 0;
};

} // namespace corvala::host::io::reader
