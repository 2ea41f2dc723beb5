// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/mapped_file.h"

#include "host/io/reader/read_failure.h"

namespace corvala::host::io::reader {

MappedFile::MappedFile(const QString& path)
    : m_file(path)
{
    const bool isOpen = m_file.open(QIODevice::ReadOnly);
    const uchar* const start = isOpen ? m_file.map(0, m_file.size()) : nullptr;
    if (!start)
        throw ReadFailure(path, "%1", {m_file.errorString()});
    m_bytes = {reinterpret_cast<const char*>(start), static_cast<std::size_t>(m_file.size())};
}

} // namespace corvala::host::io::reader
