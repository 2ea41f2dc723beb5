// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_protocol.h"
#include "host/io/reader/read_failure.h"

#include <chrono>

namespace corvala::host::io::reader {

/// The pipe to the program. Takes over the standard output, so that libraries which print do not
/// disturb the lines.
class Channel
{
public:
    Channel();

    /// Tells what is done; at most some ten times a second reaches the program.
    void report(const QString& file, int percent, const ReadMessage& what);
    void fail(const ReadFailure& failure);

private:
    void write(const ReaderLine& line) const;

    int m_descriptor;
    std::string m_file;
    std::chrono::steady_clock::time_point m_lastReport;
};

} // namespace corvala::host::io::reader
