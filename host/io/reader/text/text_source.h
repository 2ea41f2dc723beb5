// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_dialect.h"

#include <QByteArray>
#include <QFile>

#include <cstdint>
#include <optional>
#include <string>

namespace corvala::host::io::reader {

/// The encoding of a text by a part of it, from its mark or its bytes; empty for what is no text.
std::optional<TextEncoding> encodingOf(const QByteArray& bytes);

/// Turns the bytes of a file into UTF-8, part by part.
class TextDecoder
{
public:
    explicit TextDecoder(TextEncoding encoding)
        : m_encoding(encoding)
    {
    }

    /// Appends what the bytes say; a character that goes on in the next bytes is kept until then.
    void decode(const char* bytes, std::size_t count, std::string& text);

private:
    void takeUnit(unsigned unit, std::string& text);

    TextEncoding m_encoding;
    int m_firstByte = -1; ///< of half a UTF-16 unit
    unsigned m_highSurrogate = 0;
};

/// The lines of a text file, whose ends may be of any kind and mixed.
class LineReader
{
public:
    static constexpr std::size_t kLongestLine = std::size_t(4) << 20; ///< bytes

    /// Begins at a byte, which must be even for UTF-16. Throws ReadFailure when the file cannot be
    /// opened.
    LineReader(const QString& path, TextEncoding encoding, std::int64_t firstByte = 0);

    /// The next line without its end, valid until the next call. False at the end of the file.
    /// Throws ReadFailure for an endless line.
    bool next(std::string_view& line);
    std::int64_t number() const { return m_number; } ///< of that line, from 1
    double part() const; ///< of the file that is read, 0 to 1
    std::int64_t bytesRead() const { return m_file.pos(); } ///< up to the line, or a part more

    /// The present line; the file can be read again from behind it while it is held.
    void hold();
    void rewind();
    void release() { m_isHeld = false; }

private:
    bool refill();

    QFile m_file;
    TextDecoder m_decoder;
    std::string m_text;
    std::size_t m_position = 0; ///< in the text
    std::int64_t m_number = 0;
    bool m_isHeld = false;
    std::size_t m_heldPosition = 0;
    std::int64_t m_heldNumber = 0;
};

} // namespace corvala::host::io::reader
