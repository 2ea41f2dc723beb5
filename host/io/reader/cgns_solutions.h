// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

#include <QDir>

namespace corvala::host::io::reader {

/// A CGNS file in which each zone names its solution at each time.
struct CgnsSolutions
{
    QString path;
    std::vector<ReadMessage> notes;
};

/// The file itself where it is sound. Where pointers to solutions name no node, or there are none,
/// VTK takes the first solution for all times: then a file in `helper` that links to this one and
/// names the solutions in their own order, when there are as many as times. Otherwise that file has
/// no times.
CgnsSolutions withSoundSolutions(const QString& path, const QDir& helper);

} // namespace corvala::host::io::reader
