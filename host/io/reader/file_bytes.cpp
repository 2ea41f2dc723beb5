// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/file_bytes.h"

#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <algorithm>
#include <cstring>

namespace corvala::host::io::reader {

static constexpr qint64 kBufferSize = 1 << 16;

FileBytes::FileBytes(const QString& path)
    : m_file(path)
{
    requireReadable(path);
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw ReadFailure(path, "%1", {m_file.errorString()});
    m_size = m_file.size();
}

void FileBytes::seek(qint64 position)
{
    if (position >= m_bufferStart
        && position <= m_bufferStart + static_cast<qint64>(m_buffer.size())) {
        m_place = position - m_bufferStart;
        return;
    }
    m_bufferStart = std::clamp<qint64>(position, 0, m_size);
    m_place = 0;
    m_buffer.clear();
}

/// Fills the buffer from where reading has come.
void FileBytes::fill()
{
    m_bufferStart = position();
    m_place = 0;
    m_buffer.resize(static_cast<std::size_t>(std::min(kBufferSize, left())));
    readFrom(m_bufferStart, m_buffer.data(), static_cast<qint64>(m_buffer.size()));
}

void FileBytes::readFrom(qint64 position, char* target, qint64 count)
{
    if (!m_file.seek(position) || m_file.read(target, count) != count)
        throw ReadFailure(path(), QT_TRANSLATE_NOOP("ReadMessage", "it changed while it was read"));
}

std::string_view FileBytes::peek(qint64 count)
{
    if (m_place + count > static_cast<qint64>(m_buffer.size())
        && m_bufferStart + static_cast<qint64>(m_buffer.size()) < m_size)
        fill();
    const qint64 there = std::min(count, static_cast<qint64>(m_buffer.size()) - m_place);
    return {m_buffer.data() + m_place, static_cast<std::size_t>(there)};
}

void FileBytes::read(char* target, qint64 count)
{
    const qint64 inBuffer = std::min(count, static_cast<qint64>(m_buffer.size()) - m_place);
    std::memcpy(target, m_buffer.data() + m_place, static_cast<std::size_t>(inBuffer));
    m_place += inBuffer;
    if (count == inBuffer)
        return;
    readFrom(position(), target + inBuffer, count - inBuffer);
    skip(count - inBuffer);
}

} // namespace corvala::host::io::reader
