// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_message.h"
#include "host/io/read_request.h"

#include <vtkDataObject.h>
#include <vtkSmartPointer.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace corvala::host::io::reader {

/// Called while reading, with the part done from 0 to 1.
using ProgressCall = std::function<void(double)>;

/// One file, or a group of files that belong together, of one format.
class DataFile
{
public:
    virtual ~DataFile() = default;

    /// The file that stands for the group in names and messages; an absolute path.
    virtual QString path() const = 0;
    /// What stands for the group in names of zones; empty for the name of that file.
    virtual QString name() const { return {}; }
    /// Solution times in the file; empty, or one, for steady data.
    virtual std::vector<double> times() const = 0;
    /// Data at the time with this index (0 for steady data): a vtkDataSet or a tree of blocks.
    /// Throws ReadFailure. Warnings and errors of VTK are left for the caller to take.
    virtual vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                                const ProgressCall& progress) = 0;
    /// What reading left out or guessed, so far.
    virtual std::vector<ReadMessage> notes() const { return {}; }
    /// Layout of a Plot3D file, once it is read.
    virtual std::optional<Plot3DLayout> plot3dLayout() const { return std::nullopt; }
    /// Patches at the boundary that can be read, but were not chosen.
    virtual std::int64_t unreadPatches() const { return 0; }
    /// How a table of text is written, once it is read.
    virtual std::optional<TextDialect> textDialect() const { return std::nullopt; }
    /// False for a table of text that could be meant in another way.
    virtual bool isSure() const { return true; }
    /// False where points have no place, as in a table.
    virtual bool hasCoordinates() const { return true; }
    /// Whether an array says where points are, as columns of a table do; once it is read.
    virtual bool isPlace(const std::string& /*array*/) const { return false; }
    /// What an array stands for, once it is read.
    virtual VariableKind kindOf(const std::string& /*array*/) const { return VariableKind::Number; }
};

} // namespace corvala::host::io::reader
