// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_stream.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"

#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <regex>

namespace corvala::host::io::reader {

static constexpr qint64 kLineLength = 80; ///< of a line in a binary file
static constexpr qint64 kNumberSize = 4; ///< of a number in a binary file, and of a record's mark
static constexpr qint64 kLongestNumber = 64; ///< in text
static constexpr qint64 kColumn = 12; ///< width of numbers in text that may touch
static constexpr qint64 kLongestLine = 4096; ///< in text

static std::string trimmed(std::string_view text)
{
    static constexpr char kBlanks[] = " \t\r\n\v\f";
    text = text.substr(0, text.find('\0'));
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(kBlanks) + 1 - first));
}

static std::int32_t numberAt(const char* bytes, bool isBigEndian)
{
    return isBigEndian ? qFromBigEndian<qint32>(bytes) : qFromLittleEndian<qint32>(bytes);
}

/// Lines of 80 characters, numbers of four bytes.
class BinaryStream : public EnSightStream
{
public:
    BinaryStream(const QString& path, EnSightCoding coding)
        : EnSightStream(path)
        , m_coding(coding)
    {
    }

    bool isText() const override { return false; }

    void requireRoom(qint64 count) override
    {
        const qint64 room = m_bytes.left() - 2 * markSize();
        if (count > 0 && count > room / kNumberSize)
            failAtEnd(m_bytes.position() + 2 * markSize() + count * kNumberSize);
    }

protected:
    std::optional<std::string> nextLine() override
    {
        if (m_bytes.left() == 0)
            return std::nullopt;
        char text[kLineLength];
        record(text, kLineLength);
        return trimmed({text, kLineLength});
    }

    bool isRemark(const std::string&) const override { return false; }

    void readInts(std::int32_t* target, qint64 count) override { numbers(target, count); }
    void readFloats(float* target, qint64 count) override { numbers(target, count); }

private:
    qint64 markSize() const
    {
        return m_coding.kind == EnSightCoding::RecordedBinary ? kNumberSize : 0;
    }

    template<class Number>
    void numbers(Number* target, qint64 count)
    {
        static_assert(sizeof(Number) == kNumberSize);
        if (count == 0)
            return skipEmptyRecord();
        record(reinterpret_cast<char*>(target), count * kNumberSize);
        auto* const words = reinterpret_cast<quint32*>(target);
        if (m_coding.isBigEndian)
            qFromBigEndian<quint32>(words, count, words);
        else
            qFromLittleEndian<quint32>(words, count, words);
    }

    /// Some programs write one for a list of nothing.
    void skipEmptyRecord()
    {
        static const std::string empty(2 * kNumberSize, '\0');
        if (markSize() > 0 && m_bytes.peek(2 * kNumberSize) == empty)
            m_bytes.skip(2 * kNumberSize);
    }

    void record(char* target, qint64 size)
    {
        if (m_bytes.left() < size + 2 * markSize())
            failAtEnd(m_bytes.position() + size + 2 * markSize());
        mark(size);
        m_bytes.read(target, size);
        mark(size);
    }

    void mark(qint64 size)
    {
        if (markSize() == 0)
            return;
        char bytes[kNumberSize];
        m_bytes.read(bytes, kNumberSize);
        if (numberAt(bytes, m_coding.isBigEndian) != size)
            fail(QT_TRANSLATE_NOOP("ReadMessage", "a record at byte %1 has another length than %2"),
                 {QString::number(m_bytes.position() - kNumberSize), QString::number(size)});
    }

    EnSightCoding m_coding;
};

/// Numbers between blanks; those of fixed width may touch, where a sign begins the next.
class TextStream : public EnSightStream
{
public:
    explicit TextStream(const QString& path)
        : EnSightStream(path)
    {
    }

    bool isText() const override { return true; }

    void requireRoom(qint64 count) override
    {
        if (count > m_bytes.left() / 2 + 1)
            failCutOff();
    }

protected:
    /// After numbers, what is left of their line counts when it says something.
    std::optional<std::string> nextLine() override
    {
        if (std::exchange(m_isBehindNumber, false)) {
            const std::string rest = trimmed(restOfLine());
            if (!rest.empty())
                return rest;
        }
        if (m_bytes.left() == 0)
            return std::nullopt;
        return trimmed(restOfLine());
    }

    bool isRemark(const std::string& line) const override { return line.empty() || line[0] == '#'; }

    void readInts(std::int32_t* target, qint64 count) override
    {
        for (qint64 i = 0; i < count; ++i) {
            const char* const text = number();
            char* end = nullptr;
            const long value = std::strtol(text, &end, 10);
            if (value != static_cast<std::int32_t>(value))
                fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 is no count or number of a point"),
                     {QString::number(value)});
            take(end - text);
            target[i] = static_cast<std::int32_t>(value);
        }
    }

    void readFloats(float* target, qint64 count) override
    {
        for (qint64 i = 0; i < count; ++i) {
            char* const text = number();
            char* end = nullptr;
            target[i] = std::strtof(text, &end);
            if (insertExponent(end - text))
                target[i] = std::strtof(text, &end);
            if (!isEnd(end - text)) { // two may touch, as in 1.00000e+0002.00000e+000
                m_text[kColumn] = '\0';
                target[i] = std::strtof(text, &end);
            }
            take(end - text - std::exchange(m_inserted, 0));
        }
    }

private:
    std::string restOfLine()
    {
        const std::string_view ahead = m_bytes.peek(kLongestLine);
        const std::size_t end = std::min(ahead.find('\n'), ahead.size());
        std::string line(ahead.substr(0, end));
        m_bytes.skip(static_cast<qint64>(std::min(end + 1, ahead.size())));
        return line;
    }

    /// The text from the next number on, which ends with a zero.
    char* number()
    {
        m_widthBefore = std::exchange(m_width, 0);
        for (;;) {
            const std::string_view ahead = m_bytes.peek(kLongestNumber - 1);
            const std::size_t blanks = std::min(ahead.find_first_not_of(" \t\r\n"), ahead.size());
            const auto end = ahead.begin() + static_cast<std::ptrdiff_t>(blanks);
            m_width += std::count(ahead.begin(), end, ' ');
            m_bytes.skip(static_cast<qint64>(blanks));
            if (ahead.empty())
                failCutOff();
            if (blanks == 0 && ahead[0] == '#') {
                restOfLine();
            } else if (blanks == 0) {
                ahead.copy(m_text, ahead.size());
                m_text[ahead.size()] = '\0';
                return m_text;
            }
        }
    }

    /// Fortran writes exponents with a D, and those of three digits without a letter: 1.5-100.
    bool insertExponent(std::ptrdiff_t length)
    {
        static const std::regex letter("[dD][+-]?[0-9]+");
        static const std::regex bare("[+-][0-9]{3}(?![0-9.])");
        char* const behind = m_text + length;
        if (length == 0 || std::strchr(" \t\r\n", *behind)) // which holds for the zero, too
            return false;
        if (std::regex_search(behind, letter, std::regex_constants::match_continuous)) {
            *behind = 'e';
            return true;
        }
        const bool hasExponent = std::find(m_text, behind, 'e') != behind
            || std::find(m_text, behind, 'E') != behind || length + 6 > kLongestNumber;
        if (hasExponent || !std::regex_search(behind, bare, std::regex_constants::match_continuous))
            return false;
        std::memmove(behind + 1, behind, kLongestNumber - 1 - static_cast<std::size_t>(length));
        m_text[kLongestNumber - 1] = '\0';
        *behind = 'e';
        m_inserted = 1;
        return true;
    }

    /// A number ends before a blank or a sign, or where it fills its column.
    bool isEnd(std::ptrdiff_t length) const
    {
        static constexpr std::string_view kBehind(" \t\r\n+-\0", 7);
        return length > 0 && length < kLongestNumber - 1
            && (length == kColumn || kBehind.find(m_text[length]) != std::string_view::npos);
    }

    /// One that the file ends with may have had more digits, but not if it is as wide as the one
    /// before it.
    void take(std::ptrdiff_t length)
    {
        if (!isEnd(length))
            fail(QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no number"),
                 {QString::fromLatin1(m_text).simplified().section(QLatin1Char(' '), 0, 0)});
        m_width += length;
        if (length >= m_bytes.left() && m_width != m_widthBefore)
            failCutOff();
        m_bytes.skip(length);
        m_isBehindNumber = true;
    }

    [[noreturn]] void failCutOff() const
    {
        fail(QT_TRANSLATE_NOOP("ReadMessage",
                               "it is cut off: after its %1 bytes more numbers are due"),
             {QString::number(m_bytes.size())});
    }

    char m_text[kLongestNumber];
    std::ptrdiff_t m_width = 0; ///< of the last number, with the blanks before it
    std::ptrdiff_t m_widthBefore = 0; ///< of the number before that
    int m_inserted = 0; ///< characters of the number that are not in the file
    bool m_isBehindNumber = false;
};

std::vector<EnSightCoding> codingsOf(const QString& path)
{
    FileBytes bytes(path);
    const std::string start(bytes.peek(2 * kNumberSize + kLineLength));
    for (const bool isBigEndian : {false, true})
        if (start.size() >= kNumberSize
            && numberAt(start.data(), isBigEndian) == static_cast<std::int32_t>(kLineLength))
            return {{EnSightCoding::RecordedBinary, isBigEndian}};
    const QString line = QString::fromLatin1(start.data(), static_cast<int>(start.find('\n')));
    if (!line.section(QLatin1Char(' '), 1, 1, QString::SectionSkipEmpty)
             .startsWith(QLatin1String("binary"), Qt::CaseInsensitive))
        return {{EnSightCoding::Text, false}};
    return {{EnSightCoding::Binary, false}, {EnSightCoding::Binary, true}};
}

std::unique_ptr<EnSightStream> EnSightStream::open(const QString& path, EnSightCoding coding)
{
    if (coding.kind == EnSightCoding::Text)
        return std::make_unique<TextStream>(path);
    return std::make_unique<BinaryStream>(path, coding);
}

void EnSightStream::fail(const char* reason, std::initializer_list<QString> values) const
{
    throw ReadFailure(path(), reason, values);
}

void EnSightStream::failAtEnd(qint64 neededSize) const
{
    fail(QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of at least %2 bytes are there"),
         {QString::number(m_bytes.size()), QString::number(neededSize)});
}

std::string EnSightStream::line()
{
    std::optional<std::string> result = nextLine();
    if (!result)
        failAtEnd(m_bytes.size() + 1);
    return *std::move(result);
}

std::optional<std::string> EnSightStream::keyword()
{
    std::optional<std::string> result = nextLine();
    while (result && isRemark(*result))
        result = nextLine();
    if (!result && m_isStepped)
        failAtEnd(m_bytes.size() + 1);
    if (result && m_isStepped && result->rfind("END TIME STEP", 0) == 0)
        return std::nullopt;
    return result;
}

void EnSightStream::expect(const char* content)
{
    const std::optional<std::string> found = keyword();
    if (!found)
        failAtEnd(m_bytes.size() + 1);
    if (found->rfind(content, 0) != 0)
        fail(QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" stands in the place of \"%2\""),
             {QString::fromUtf8(found->c_str()), QString::fromLatin1(content)});
}

std::vector<std::int32_t> EnSightStream::ints(qint64 count)
{
    requireRoom(count);
    std::vector<std::int32_t> result(static_cast<std::size_t>(count));
    readInts(result.data(), count);
    return result;
}

qint64 EnSightStream::count()
{
    const qint64 result = oneInt();
    if (result < 0)
        fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 is no count"), {QString::number(result)});
    requireRoom(result);
    return result;
}

void EnSightStream::floats(float* target, qint64 count)
{
    requireRoom(count);
    readFloats(target, count);
}

std::vector<float> EnSightStream::floats(qint64 count)
{
    requireRoom(count);
    std::vector<float> result(static_cast<std::size_t>(count));
    floats(result.data(), count);
    return result;
}

} // namespace corvala::host::io::reader
