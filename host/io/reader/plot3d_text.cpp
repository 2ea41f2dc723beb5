// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_source.h"

#include <QFile>

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostLeading = 4'000'000;
static constexpr std::size_t kLongestNumber = 64;
static constexpr std::int64_t kMostRepeats = 1'000'000'000;

/// Cuts a text file into its words. A comma separates as a blank does.
class WordReader
{
public:
    explicit WordReader(const QString& path)
        : m_file(path)
    {
        m_file.open(QIODevice::ReadOnly);
    }

    /// The next word, empty at the end of the file. One that is too long for a number is cut.
    std::string_view next()
    {
        m_word.clear();
        for (int character = get(); character >= 0; character = get()) {
            m_hasComma = m_hasComma || character == ',';
            const bool separates = character == ',' || character == ' ' || character == '\n'
                || character == '\r' || character == '\t';
            if (separates && !m_word.empty())
                break;
            if (!separates && m_word.size() <= kLongestNumber)
                m_word += static_cast<char>(character);
        }
        return m_word;
    }

    bool hasComma() const { return m_hasComma; }

private:
    int get()
    {
        if (m_position == m_buffer.size()) {
            m_buffer = m_file.read(1 << 16);
            m_position = 0;
        }
        return m_buffer.isEmpty() ? -1 : static_cast<unsigned char>(m_buffer[m_position++]);
    }

    QFile m_file;
    QByteArray m_buffer;
    int m_position = 0;
    std::string m_word;
    bool m_hasComma = false;
};

/// A word of Fortran's list-directed output: 1.5, 1.5D0 or 3*1.5.
struct Number
{
    std::int64_t repeats = 1;
    double value = 0.0;
    bool isWhole = false;
    bool isPlain = true;
};

template<class T>
static bool convert(std::string_view text, T& value)
{
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

static std::optional<Number> toNumber(std::string_view word)
{
    Number number;
    const std::size_t star = word.find('*');
    if (star != std::string_view::npos) {
        if (!convert(word.substr(0, star), number.repeats) || number.repeats < 1
            || number.repeats > kMostRepeats)
            return std::nullopt;
        word.remove_prefix(star + 1);
        number.isPlain = false;
    }
    std::int64_t whole = 0;
    number.isWhole = convert(word, whole);
    std::string text(word);
    const std::size_t exponent = text.find_first_of("dD");
    if (exponent != std::string::npos) {
        text[exponent] = 'e';
        number.isPlain = false;
    }
    if (!convert(std::string_view(text), number.value))
        return std::nullopt;
    return number;
}

std::optional<Plot3DText> scanPlot3DText(const QString& path)
{
    WordReader words(path);
    Plot3DText result;
    bool leads = true;
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        const std::optional<Number> number = toNumber(word);
        if (!number)
            return std::nullopt;
        leads = leads && number->isWhole && result.leading.size() < kMostLeading
            && std::abs(number->value) < 1e15;
        for (std::int64_t i = 0;
             leads && i < number->repeats && result.leading.size() < kMostLeading; ++i)
            result.leading.push_back(static_cast<std::int64_t>(number->value));
        result.count += number->repeats;
        result.isPlain = result.isPlain && number->isPlain;
    }
    result.isPlain = result.isPlain && !words.hasComma();
    return result;
}

bool writePlainText(const QString& path, const QString& plainPath)
{
    WordReader words(path);
    QFile plain(plainPath);
    if (!plain.open(QIODevice::WriteOnly))
        return false;
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        const std::optional<Number> number = toNumber(word);
        if (!number)
            return false;
        QByteArray text = number->isWhole ? QByteArray::number(static_cast<qint64>(number->value))
                                          : QByteArray::number(number->value, 'g', 17);
        text += '\n';
        for (std::int64_t i = 0; i < number->repeats; ++i)
            if (plain.write(text) != text.size())
                return false;
    }
    return plain.flush();
}

} // namespace corvala::host::io::reader
