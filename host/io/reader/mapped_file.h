// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFile>
#include <QString>

#include <string_view>

namespace corvala::host::io::reader {

/// All bytes of a file, in memory only where they are looked at. It takes as much of the limited
/// address space as the file is long; FileBytes does not.
class MappedFile
{
public:
    /// Of what requireReadable() lets pass. Throws ReadFailure when it cannot be mapped.
    explicit MappedFile(const QString& path);

    QString path() const { return m_file.fileName(); }
    std::string_view bytes() const { return m_bytes; }

private:
    QFile m_file;
    std::string_view m_bytes;
};

} // namespace corvala::host::io::reader
