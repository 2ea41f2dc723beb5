// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/legacy_layout.h"

#include "host/io/reader/legacy_number.h"
#include "host/io/reader/mapped_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <utility>

namespace corvala::host::io::reader {

static constexpr std::string_view kBlank = " \t\r\n";

static std::string lower(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return result;
}

/// Not negative; 0 for what is no number.
static double countOf(const std::vector<std::string>& words, std::size_t at)
{
    std::int64_t result = 0;
    if (at < words.size())
        std::from_chars(words[at].data(), words[at].data() + words[at].size(), result);
    return static_cast<double>(std::max<std::int64_t>(result, 0));
}

/// Bytes of a number in binary files, an eighth for bits; 0 for types without a size.
static double sizeOf(const std::string& type)
{
    static const std::map<std::string, double> sizes {
        {"bit", 0.125},   {"char", 1},           {"signed_char", 1},  {"unsigned_char", 1},
        {"short", 2},     {"unsigned_short", 2}, {"int", 4},          {"unsigned_int", 4},
        {"vtkidtype", 4}, {"float", 4},          {"long", 8},         {"unsigned_long", 8},
        {"double", 8},    {"vtktypeint64", 8},   {"vtktypeuint64", 8}};
    const auto found = sizes.find(type);
    return found == sizes.end() ? 0 : found->second;
}

LegacyLayout::LegacyLayout(const MappedFile& file)
    : m_file(file)
    , m_bytes(file.bytes())
{
    const std::vector<std::string> version = nextLine();
    m_hasNewCells = version.size() > 4 && countOf(version, 4) >= 5;
    const std::size_t title = m_bytes.find('\n', m_place); // which may be empty
    m_place = std::min(title, m_bytes.size() - 1) + 1;
    const std::vector<std::string> coding = nextLine();
    m_isText = !coding.empty() && coding[0] == "ascii";
    m_spans.push_back({Kind::Structure, 0, m_place});
    while (m_isKnown && walkLine()) { }
    if (m_isKnown)
        requireWhole();
}

/// What is missing behind the last line.
void LegacyLayout::requireWhole()
{
    const ReadFailure cut(
        m_file.path(),
        QT_TRANSLATE_NOOP("ReadMessage", "it is cut off after %1 bytes: more should follow"),
        {QString::number(m_bytes.size())});
    if (m_cells != m_typedCells || (m_isOfCells && m_cells < 0))
        throw ReadFailure(cut);
    const Span& last = m_spans.back();
    if (m_section >= 0 && last.kind != Kind::Array && m_faults.empty())
        m_faults.push_back(
            {QStringLiteral("POINT_DATA, CELL_DATA"),
             ReadFailure(m_file.path(), QT_TRANSLATE_NOOP("ReadMessage", "no values follow"))});
}

/// Words of the next line that has some, in lower case but for names; none at the end.
std::vector<std::string> LegacyLayout::nextLine()
{
    static constexpr std::size_t kLongest = 4096;
    m_place = std::min(m_bytes.find_first_not_of(kBlank, m_place), m_bytes.size());
    m_lineBegin = m_place;
    const std::size_t end = std::min(m_bytes.find('\n', m_place), m_bytes.size());
    std::string_view line = m_bytes.substr(m_place, std::min(end - m_place, kLongest));
    std::vector<std::string> words;
    for (std::size_t at = line.find_first_not_of(kBlank); at < line.size();
         at = line.find_first_not_of(kBlank, at)) {
        const std::size_t stop = std::min(line.find_first_of(kBlank, at), line.size());
        const std::string_view word = line.substr(at, stop - at);
        words.push_back(words.size() == 1 ? std::string(word) : lower(word));
        at = stop;
    }
    m_place = std::min(end, m_bytes.size() - 1) + 1;
    return words;
}

bool LegacyLayout::walkLine()
{
    const std::vector<std::string> words = nextLine();
    if (words.empty())
        return false;
    const std::size_t begin = m_lineBegin;
    if (words[0] == "metadata")
        walkMetadata();
    else if (!walkStructure(words) && !walkAttribute(words) && !walkField(words))
        walkStray(begin);
    return true;
}

/// Numbers in text may begin in the line of their keyword, behind so many words.
void LegacyLayout::startNumbers(std::size_t words)
{
    std::size_t place = m_lineBegin;
    for (std::size_t i = 0; i < words && place < m_place; ++i)
        place = m_bytes.find_first_of(kBlank, m_bytes.find_first_not_of(kBlank, place));
    if (m_isText && m_bytes.find_first_not_of(kBlank, place) < m_place)
        m_place = place;
}

bool LegacyLayout::walkStructure(const std::vector<std::string>& words)
{
    static const std::vector<std::string> plain {"dataset", "dimensions", "extent",
                                                 "origin",  "spacing",    "aspect_ratio"};
    static const std::vector<std::string> cells {"vertices", "lines", "polygons", "triangle_strips",
                                                 "cells"};
    const std::string& key = words[0];
    const auto isOneOf = [&](const std::vector<std::string>& keys) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };
    const std::string type = lower(words.back());
    const std::string third = words.size() > 2 ? words[2] : std::string();
    const std::size_t begin = m_lineBegin;
    m_isOfCells = m_isOfCells || (key == "dataset" && type == "unstructured_grid");
    if (isOneOf(plain))
        return addStructure(begin, {0, "char"});
    if (key == "points") {
        startNumbers(3);
        return addStructure(begin, {3 * countOf(words, 1), third});
    }
    if (key.size() == 13 && key.compare(1, 12, "_coordinates") == 0) {
        startNumbers(3);
        return addStructure(begin, {countOf(words, 1), third});
    }
    if (key == "cell_types") {
        startNumbers(2);
        m_typedCells = countOf(words, 1);
        return addStructure(begin, {m_typedCells, "int"});
    }
    if (isOneOf(cells)) {
        m_offsets = countOf(words, 1);
        m_corners = countOf(words, 2);
        if (key == "cells")
            m_cells = m_hasNewCells ? std::max(m_offsets - 1, 0.0) : m_offsets;
        startNumbers(3);
        return addStructure(begin, {m_hasNewCells ? 0 : m_corners, "int"});
    }
    if (key == "offsets")
        return addStructure(begin, {m_offsets, type});
    if (key == "connectivity")
        return addStructure(begin, {m_corners, type});
    if (key != "point_data" && key != "cell_data")
        return false;
    m_tuples = countOf(words, 1);
    m_section = static_cast<std::ptrdiff_t>(m_spans.size());
    m_spans.push_back({Kind::Section, begin, m_place});
    return true;
}

bool LegacyLayout::walkAttribute(const std::vector<std::string>& words)
{
    static const std::map<std::string, double> components {
        {"vectors", 3},    {"normals", 3},      {"tensors", 9},   {"tensors6", 6},
        {"global_ids", 1}, {"pedigree_ids", 1}, {"edge_flags", 1}};
    const std::string& key = words[0];
    const std::size_t begin = m_lineBegin;
    const std::string name = words.size() > 1 ? words[1] : std::string();
    const auto type = [&](std::size_t at) { return at < words.size() ? words[at] : std::string(); };
    if (const auto found = components.find(key); found != components.end()) {
        startNumbers(3);
        addArray(begin, name, {found->second * m_tuples, type(2)});
    } else if (key == "texture_coordinates")
        addArray(begin, name, {countOf(words, 2) * m_tuples, type(3)});
    else if (key == "color_scalars")
        addArray(begin, name, {countOf(words, 2) * m_tuples, "unsigned_char"});
    else if (key == "lookup_table")
        addArray(begin, name, {4 * countOf(words, 2), "unsigned_char"});
    else if (key == "scalars") {
        const double count = words.size() > 3 ? countOf(words, 3) : 1;
        const std::size_t before = m_place;
        const std::vector<std::string> table = nextLine();
        if (table.empty() || table[0] != "lookup_table")
            m_place = before;
        addArray(begin, name, {count * m_tuples, type(2)});
    } else
        return false;
    return true;
}

bool LegacyLayout::walkField(const std::vector<std::string>& words)
{
    if (words[0] != "field" || words.size() < 3)
        return false;
    const auto field = static_cast<std::ptrdiff_t>(m_spans.size());
    m_spans.push_back({Kind::Field, m_lineBegin, m_place, true, m_section, -1, words[1]});
    const double count = countOf(words, 2);
    for (double i = 0; i < count && m_isKnown; ++i) {
        std::size_t before = m_place;
        std::vector<std::string> array = nextLine();
        while (!array.empty() && array[0] == "metadata") {
            walkMetadata();
            before = m_place;
            array = nextLine();
        }
        if (array.size() == 4 && sizeOf(array[3]) == 0)
            m_isKnown = false;
        if (array.empty())
            m_faults.push_back({QString::fromStdString(words[1]),
                                cutOff(static_cast<double>(m_bytes.size()) + 1)});
        if (array.size() != 4 || !m_isKnown) {
            m_place = before;
            return true;
        }
        const std::string name(m_bytes.substr(m_lineBegin, array[0].size()));
        const double components = countOf({array[1]}, 0);
        addArray(m_lineBegin, name, {components * countOf(array, 2), array[3]}, field);
    }
    return true;
}

/// Belongs to the array before it, and ends with an empty line.
void LegacyLayout::walkMetadata()
{
    const std::size_t end = std::min(m_bytes.find("\n\n", m_lineBegin), m_bytes.size() - 1);
    m_place = end + 1;
    m_spans.back().end = m_place;
}

/// Numbers belong to the array before them, whose count is wrong then.
void LegacyLayout::walkStray(std::size_t begin)
{
    Span& last = m_spans.back();
    const bool isInArrays = m_section >= 0 && last.kind == Kind::Array;
    if (!isInArrays) {
        m_isKnown = m_section >= 0 && m_isText;
        return;
    }
    const std::string_view line = m_bytes.substr(begin, m_place - begin);
    const std::string_view word = line.substr(0, line.find_first_of(kBlank));
    const bool isAstray = std::exchange(m_astrayBehind, m_spans.size()) == m_spans.size();
    if (last.isWhole && !isAstray && (!m_isText || numberOf(word))) {
        last.isWhole = false;
        m_faults.push_back(
            {QString::fromStdString(last.name),
             ReadFailure(m_file.path(),
                         QT_TRANSLATE_NOOP("ReadMessage", "more follows than it should hold"))});
    } else if (last.isWhole && m_strayText.isEmpty())
        m_strayText = QString::fromLatin1(word.data(),
                                          static_cast<int>(std::min<std::size_t>(word.size(), 40)));
    if (!m_isText)
        m_place = m_bytes.size();
}

bool LegacyLayout::addStructure(std::size_t begin, const Numbers& numbers)
{
    const std::optional<ReadFailure> failure = pass(numbers);
    if (failure && m_place >= m_bytes.size())
        throw ReadFailure(*failure);
    m_isKnown = m_isKnown && !failure;
    m_spans.push_back({Kind::Structure, begin, m_place});
    return true;
}

void LegacyLayout::addArray(std::size_t begin, const std::string& name, const Numbers& numbers,
                            std::ptrdiff_t field)
{
    const std::optional<ReadFailure> failure = pass(numbers);
    if (!m_isKnown)
        return;
    if (failure) {
        m_faults.push_back({QString::fromStdString(name), *failure});
        seekArray();
    }
    m_spans.push_back({Kind::Array, begin, m_place, !failure, m_section, field, name});
}

/// Goes to the next line of text that begins an array or a section.
void LegacyLayout::seekArray()
{
    static const std::set<std::string> keys {"point_data",   "cell_data",
                                             "scalars",      "vectors",
                                             "normals",      "tensors",
                                             "tensors6",     "global_ids",
                                             "edge_flags",   "pedigree_ids",
                                             "field",        "lookup_table",
                                             "metadata",     "texture_coordinates",
                                             "color_scalars"};
    while (m_place < m_bytes.size()) {
        const std::size_t before = m_place;
        const std::vector<std::string> words = nextLine();
        if (words.empty() || keys.count(words[0]) > 0
            || (words.size() == 4 && sizeOf(words[3]) > 0)) {
            m_place = before;
            return;
        }
    }
}

ReadFailure LegacyLayout::cutOff(double bytes) const
{
    return {m_file.path(),
            QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of at least %2 bytes are there"),
            {QString::number(m_bytes.size()), QString::number(bytes, 'f', 0)}};
}

/// Passes over numbers. Returns why they are not whole.
std::optional<ReadFailure> LegacyLayout::pass(const Numbers& numbers)
{
    const double size = sizeOf(numbers.type);
    if (size == 0) {
        m_isKnown = false;
        return std::nullopt;
    }
    if (m_isText)
        return passText(numbers.count);
    const double end = static_cast<double>(m_place) + std::ceil(numbers.count * size);
    if (end > static_cast<double>(m_bytes.size())) {
        m_place = m_bytes.size();
        return cutOff(end);
    }
    m_place = static_cast<std::size_t>(end);
    return std::nullopt;
}

std::optional<ReadFailure> LegacyLayout::passText(double count)
{
    std::size_t lastWidth = 0;
    for (double i = 0; i < count; ++i) {
        const std::size_t begin =
            std::min(m_bytes.find_first_not_of(kBlank, m_place), m_bytes.size());
        std::size_t end = begin;
        bool isOdd = false;
        for (; end < m_bytes.size() && static_cast<unsigned char>(m_bytes[end]) > ' '; ++end)
            isOdd = isOdd || !isOfPlainNumber(m_bytes[end]);
        const std::string_view word = m_bytes.substr(begin, end - begin);
        // A number with which the file ends may lack digits.
        const bool isCut = end == m_bytes.size() && word.size() < lastWidth;
        if (word.empty() || isCut) {
            m_place = m_bytes.size();
            return cutOff(static_cast<double>(m_bytes.size()) + 2 * (count - i) - 1);
        }
        if (isOdd && !numberOf(word))
            return ReadFailure(
                m_file.path(), QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no number"),
                {QString::fromLatin1(word.data(),
                                     static_cast<int>(std::min<std::size_t>(word.size(), 40)))});
        m_hasOddNumbers = m_hasOddNumbers || isOdd;
        lastWidth = word.size();
        m_place = end;
    }
    return std::nullopt;
}

std::vector<std::size_t> LegacyLayout::arrays() const
{
    std::vector<std::size_t> result;
    for (std::size_t i = 0; i < m_spans.size(); ++i)
        if (m_spans[i].kind == Kind::Array && m_spans[i].isWhole)
            result.push_back(i);
    return result;
}

QString LegacyLayout::nameOf(std::size_t array) const
{
    return QString::fromStdString(m_spans[array].name);
}

bool LegacyLayout::isPlain() const
{
    return m_faults.empty() && m_strayText.isEmpty() && !m_hasOddNumbers;
}

std::string LegacyLayout::text(const std::vector<std::size_t>& arrays) const
{
    std::map<std::ptrdiff_t, int> uses; // of sections and fields
    for (const std::size_t i : arrays) {
        ++uses[m_spans[i].section];
        ++uses[m_spans[i].field];
    }
    std::string result;
    for (std::size_t i = 0; i < m_spans.size(); ++i) {
        const Span& span = m_spans[i];
        const std::string_view bytes = m_bytes.substr(span.begin, span.end - span.begin);
        const int used = uses[static_cast<std::ptrdiff_t>(i)];
        const bool isChosen = std::find(arrays.begin(), arrays.end(), i) != arrays.end();
        if (span.kind == Kind::Field && used > 0)
            result += "FIELD " + span.name + ' ' + std::to_string(used);
        else if (span.kind == Kind::Structure || (span.kind == Kind::Section && used > 0)
                 || (span.kind == Kind::Array && isChosen))
            result += m_isText ? withPlainNumbers(bytes) : std::string(bytes);
        else
            continue;
        if (result.back() != '\n' || !m_isText)
            result += '\n';
    }
    return result;
}

} // namespace corvala::host::io::reader
