// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFile>
#include <QString>

#include <string_view>
#include <vector>

namespace corvala::host::io::reader {

/// The bytes of a file from front to back, through a buffer.
class FileBytes
{
public:
    /// Throws ReadFailure when the file cannot be opened, or is empty.
    explicit FileBytes(const QString& path);

    QString path() const { return m_file.fileName(); }
    qint64 size() const { return m_size; }
    qint64 position() const { return m_bufferStart + m_place; }
    qint64 left() const { return m_size - position(); }
    void seek(qint64 position);
    void skip(qint64 count) { seek(position() + count); }

    /// The next bytes, at most `count` of them and fewer at the end; valid until the next call.
    std::string_view peek(qint64 count);
    /// The file must have these many left. Throws ReadFailure when it became shorter.
    void read(char* target, qint64 count);

private:
    void fill();
    void readFrom(qint64 position, char* target, qint64 count);

    QFile m_file;
    qint64 m_size = 0;
    std::vector<char> m_buffer;
    qint64 m_bufferStart = 0; ///< place of the buffer in the file
    qint64 m_place = 0; ///< in the buffer
};

} // namespace corvala::host::io::reader
