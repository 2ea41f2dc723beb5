// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/text_source.h"

#include "host/io/reader/read_failure.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace corvala::host::io::reader {

static constexpr qint64 kPartBytes = 1 << 20;
static constexpr unsigned kByteOrderMark = 0xFEFF;
static constexpr unsigned kReplacement = 0xFFFD;

/// Text in two bytes per character: the upper ones of Latin letters and digits are zero.
static std::optional<TextEncoding> wideEncodingOf(const QByteArray& bytes)
{
    int zeros[2] = {0, 0};
    for (int i = 0; i < bytes.size(); ++i)
        zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
    const int pairs = std::max(1, bytes.size() / 2);
    const auto isMost = [pairs](int count) { return count > 0.6 * pairs; };
    const auto isFew = [pairs](int count) { return count < 0.05 * pairs; };
    if (isMost(zeros[1]) && isFew(zeros[0]))
        return TextEncoding::Utf16Little;
    if (isMost(zeros[0]) && isFew(zeros[1]))
        return TextEncoding::Utf16Big;
    return std::nullopt;
}

/// Control characters besides blanks, line ends, page ends and the end mark of old systems.
static bool isControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20
        && !std::strchr("\t\n\v\f\r\x1a\x1b", character);
}

static bool isUtf8(const QByteArray& bytes)
{
    constexpr int kMostCut = 6; // halves of characters at both ends of a part
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isCut = bytes.size() > 1000;
    return state.invalidChars <= (isCut ? kMostCut : 0);
}

std::optional<TextEncoding> encodingOf(const QByteArray& bytes)
{
    if (bytes.startsWith("\xFF\xFE"))
        return TextEncoding::Utf16Little;
    if (bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Utf16Big;
    if (bytes.contains('\0'))
        return wideEncodingOf(bytes);
    const auto controls = std::count_if(bytes.begin(), bytes.end(), isControl);
    if (controls > bytes.size() / 100)
        return std::nullopt;
    return bytes.startsWith("\xEF\xBB\xBF") || isUtf8(bytes) ? TextEncoding::Utf8
                                                             : TextEncoding::Latin1;
}

/// What Windows writes where Latin-1 has control characters that nobody uses, from 0x80 on.
static unsigned latinCode(unsigned byte)
{
    static constexpr unsigned kWindows[] = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    return byte >= 0x80 && byte < 0x80 + std::size(kWindows) ? kWindows[byte - 0x80] : byte;
}

static void append(unsigned code, std::string& text)
{
    if (code == kByteOrderMark)
        return;
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned kFirst[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kFirst[more] | code >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
}

void TextDecoder::takeUnit(unsigned unit, std::string& text)
{
    const bool isLow = unit >= 0xDC00 && unit < 0xE000;
    if (m_highSurrogate != 0 && isLow)
        append(0x10000 + ((m_highSurrogate - 0xD800) << 10) + (unit - 0xDC00), text);
    else if (m_highSurrogate != 0 || isLow)
        append(kReplacement, text);
    const bool isUsed = isLow;
    m_highSurrogate = unit >= 0xD800 && unit < 0xDC00 ? unit : 0;
    if (!isUsed && m_highSurrogate == 0)
        append(unit, text);
}

void TextDecoder::decode(const char* bytes, std::size_t count, std::string& text)
{
    if (m_encoding == TextEncoding::Utf8) {
        text.append(bytes, count);
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned byte = static_cast<unsigned char>(bytes[i]);
        if (m_encoding == TextEncoding::Latin1) {
            append(latinCode(byte), text);
        } else if (m_firstByte < 0) {
            m_firstByte = static_cast<int>(byte);
        } else {
            const auto first = static_cast<unsigned>(m_firstByte);
            m_firstByte = -1;
            takeUnit(m_encoding == TextEncoding::Utf16Little ? byte << 8 | first
                                                             : first << 8 | byte,
                     text);
        }
    }
}

LineReader::LineReader(const QString& path, TextEncoding encoding, std::int64_t firstByte)
    : m_file(path)
    , m_decoder(encoding)
{
    if (!m_file.open(QIODevice::ReadOnly))
        throw ReadFailure(path, "%1", {m_file.errorString()});
    m_file.seek(firstByte);
    if (firstByte == 0 && m_file.peek(3) == "\xEF\xBB\xBF")
        m_file.skip(3);
}

/// Reads more of the file behind the text that is not used up.
bool LineReader::refill()
{
    const std::size_t used = m_isHeld ? m_heldPosition : m_position;
    m_text.erase(0, used);
    m_position -= used;
    m_heldPosition = 0;
    const QByteArray bytes = m_file.read(kPartBytes);
    m_decoder.decode(bytes.constData(), static_cast<std::size_t>(bytes.size()), m_text);
    if (m_text.size() - m_position > kLongestLine + kPartBytes)
        throw ReadFailure(
            m_file.fileName(),
            QT_TRANSLATE_NOOP("ReadMessage", "line %1 is longer than %2 MiB, so it is no table"),
            {QString::number(m_number + 1), QString::number(kLongestLine >> 20)});
    return !bytes.isEmpty();
}

bool LineReader::next(std::string_view& line)
{
    std::size_t searched = m_position;
    for (;;) {
        const std::string_view rest = std::string_view(m_text).substr(m_position);
        std::size_t end = rest.find('\n', searched - m_position);
        // Carriage returns alone end a line, too; those at the end of what is read may be part of
        // an end.
        const std::size_t lone = rest.substr(0, end).find('\r', searched - m_position);
        if (lone != std::string_view::npos
            && rest.find_first_not_of('\r', lone) < std::min(end, rest.size()))
            end = lone;
        if (end != std::string_view::npos) {
            line = rest.substr(0, end);
            m_position += end + 1;
            break;
        }
        searched = m_position + (rest.empty() ? 0 : rest.size() - 1);
        const std::size_t before = m_position;
        if (!refill()) {
            if (m_position == m_text.size())
                return false;
            line = std::string_view(m_text).substr(m_position);
            m_position = m_text.size();
            break;
        }
        searched -= before - m_position;
    }
    while (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    ++m_number;
    return true;
}

double LineReader::part() const
{
    return m_file.size() > 0
        ? static_cast<double>(m_file.pos()) / static_cast<double>(m_file.size())
        : 1.0;
}

void LineReader::hold()
{
    m_isHeld = true;
    m_heldPosition = m_position;
    m_heldNumber = m_number;
}

void LineReader::rewind()
{
    m_position = m_heldPosition;
    m_number = m_heldNumber;
    m_isHeld = false;
}

} // namespace corvala::host::io::reader
