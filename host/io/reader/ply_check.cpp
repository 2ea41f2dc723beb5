// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ply_check.h"

#include "host/io/reader/read_failure.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <vector>

namespace corvala::host::io::reader {

/// One number of an element, or a list of them.
struct PlyProperty
{
    std::string_view name;
    std::size_t size = 0; ///< of a number, in bytes
    std::size_t countSize = 0; ///< of the number of numbers; 0 for what is no list
};

struct PlyElement
{
    std::string_view name;
    std::int64_t count = 0;
    std::vector<PlyProperty> properties;
};

/// Walks over what a header announces.
class PlyWalk
{
public:
    explicit PlyWalk(const MappedFile& file)
        : m_file(file)
        , m_rest(file.bytes())
    {
    }

    void walk()
    {
        readHeader();
        requirePoints();
        for (const PlyElement& element : m_elements)
            for (std::int64_t i = 0; i < element.count; ++i)
                for (const PlyProperty& property : element.properties)
                    m_isText ? passText(property) : passBinary(property);
        if (m_rest.find_first_not_of(" \t\r\n") != std::string_view::npos)
            throw ReadFailure(
                m_file.path(),
                QT_TRANSLATE_NOOP(
                    "ReadMessage",
                    "it is damaged: it holds more points or faces than it announces"));
    }

    /// Elements that are neither points nor faces.
    QStringList others() const
    {
        QStringList result;
        for (const PlyElement& element : m_elements)
            if (element.name != "vertex" && element.name != "face" && element.count > 0)
                result << QString::fromUtf8(element.name.data(),
                                            static_cast<int>(element.name.size()));
        return result;
    }

private:
    /// VTK crashes when points have not all coordinates, or come behind faces.
    void requirePoints() const
    {
        const auto named = [](const auto& all, std::string_view name) {
            return std::find_if(all.begin(), all.end(),
                                [&](const auto& each) { return each.name == name; });
        };
        const auto points = named(m_elements, "vertex");
        for (const char* const axis : {"x", "y", "z"})
            if (points == m_elements.end()
                || named(points->properties, axis) == points->properties.end())
                throw ReadFailure(
                    m_file.path(),
                    QT_TRANSLATE_NOOP("ReadMessage", "its points have no coordinate \"%1\""),
                    {QString::fromLatin1(axis)});
        if (named(m_elements, "face") < points)
            throw ReadFailure(
                m_file.path(),
                QT_TRANSLATE_NOOP("ReadMessage",
                                  "its faces come before its points, which cannot be read"));
    }

    [[noreturn]] void failCut() const
    {
        throw ReadFailure(m_file.path(),
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "it is cut off after %1 bytes: more points or faces "
                                            "should follow"),
                          {QString::number(m_file.bytes().size())});
    }

    std::string_view word()
    {
        const std::size_t start = m_rest.find_first_not_of(" \t\r\n");
        if (start == std::string_view::npos)
            failCut();
        const std::size_t end = std::min(m_rest.find_first_of(" \t\r\n", start), m_rest.size());
        const std::string_view result = m_rest.substr(start, end - start);
        m_rest.remove_prefix(end);
        return result;
    }

    std::int64_t number(std::string_view text) const
    {
        std::int64_t result = 0;
        if (std::from_chars(text.data(), text.data() + text.size(), result).ec != std::errc()
            || result < 0)
            throw ReadFailure(m_file.path(),
                              QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no number"),
                              {QString::fromLatin1(text.data(), static_cast<int>(text.size()))});
        return result;
    }

    std::size_t sizeOf(std::string_view type) const
    {
        static const std::map<std::string_view, std::size_t> sizes {
            {"char", 1},  {"uchar", 1},   {"int8", 1},   {"uint8", 1},  {"short", 2}, {"ushort", 2},
            {"int16", 2}, {"uint16", 2},  {"int", 4},    {"uint", 4},   {"int32", 4}, {"uint32", 4},
            {"float", 4}, {"float32", 4}, {"double", 8}, {"float64", 8}};
        const auto found = sizes.find(type);
        if (found == sizes.end())
            throw ReadFailure(m_file.path(),
                              QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no type of numbers"),
                              {QString::fromLatin1(type.data(), static_cast<int>(type.size()))});
        return found->second;
    }

    void readHeader()
    {
        for (std::string_view key = word(); key != "end_header"; key = word()) {
            if (key == "format") {
                const std::string_view format = word();
                m_isText = format == "ascii";
                m_isBigEndian = format == "binary_big_endian";
            } else if (key == "element") {
                const std::string_view name = word();
                m_elements.push_back({name, number(word()), {}});
            } else if (key == "property" && !m_elements.empty())
                addProperty();
            else if (key == "comment" || key == "obj_info")
                m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
        }
        m_rest.remove_prefix(std::min(m_rest.find('\n') + 1, m_rest.size()));
    }

    void addProperty()
    {
        PlyProperty property;
        std::string_view type = word();
        if (type == "list") {
            property.countSize = sizeOf(word());
            type = word();
        }
        property.size = sizeOf(type);
        property.name = word();
        m_elements.back().properties.push_back(property);
    }

    void passText(const PlyProperty& property)
    {
        const std::int64_t count = property.countSize > 0 ? number(word()) : 1;
        for (std::int64_t i = 0; i < count; ++i)
            word();
    }

    void pass(std::uint64_t bytes)
    {
        if (bytes > m_rest.size())
            failCut();
        m_rest.remove_prefix(bytes);
    }

    void passBinary(const PlyProperty& property)
    {
        std::uint64_t count = property.countSize > 0 ? 0 : 1;
        if (property.countSize > m_rest.size())
            failCut();
        for (std::size_t i = 0; i < property.countSize; ++i) {
            const std::size_t byte = m_isBigEndian ? i : property.countSize - 1 - i;
            count = (count << 8) | static_cast<unsigned char>(m_rest[byte]);
        }
        pass(property.countSize);
        pass(count * property.size);
    }

    const MappedFile& m_file;
    std::string_view m_rest;
    std::vector<PlyElement> m_elements;
    bool m_isText = false;
    bool m_isBigEndian = false;
};

QStringList requireWholePly(const MappedFile& file)
{
    PlyWalk walk(file);
    walk.walk();
    return walk.others();
}

} // namespace corvala::host::io::reader
