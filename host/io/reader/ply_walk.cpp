// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ply_walk.h"

#include "host/io/reader/legacy_number.h"
#include "host/io/reader/read_failure.h"

#include <QtEndian>

#include <vtkTypeTraits.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string>

namespace corvala::host::io::reader {

static QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

static ReadMessage noNumber(std::string_view text)
{
    return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no number"), {shown(text)});
}

template<class T>
static double decoded(const char* bytes, bool isBigEndian)
{
    return static_cast<double>(isBigEndian ? qFromBigEndian<T>(bytes)
                                           : qFromLittleEndian<T>(bytes));
}

template<class T>
static bool isHeld(double number)
{
    using Limits = std::numeric_limits<T>;
    return !Limits::is_integer
        || (number >= static_cast<double>(Limits::lowest())
            && number <= static_cast<double>(Limits::max()));
}

template<class T>
static constexpr PlyType typeOf()
{
    return {vtkTypeTraits<T>::VTK_TYPE_ID, sizeof(T), decoded<T>, isHeld<T>};
}

PlyWalk::PlyWalk(const MappedFile& file)
    : m_file(file)
    , m_rest(file.bytes())
{
}

void PlyWalk::walk()
{
    readHeader();
    requirePoints();
    for (PlyElement& element : m_elements)
        for (std::int64_t i = 0; i < element.count; ++i)
            for (PlyProperty& property : element.properties)
                m_isText ? passText(property) : passBinary(property);
    if (m_rest.find_first_not_of(" \t\r\n") != std::string_view::npos)
        throw ReadFailure(
            m_file.path(),
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it is damaged: it holds more points or faces than it announces"));
}

/// VTK crashes when points have not all coordinates, or come behind faces.
void PlyWalk::requirePoints() const
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

void PlyWalk::failCut() const
{
    throw ReadFailure(m_file.path(),
                      QT_TRANSLATE_NOOP("ReadMessage",
                                        "it is cut off after %1 bytes: more points or faces "
                                        "should follow"),
                      {QString::number(m_file.bytes().size())});
}

std::string_view PlyWalk::word()
{
    const std::size_t start = m_rest.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos)
        failCut();
    const std::size_t end = std::min(m_rest.find_first_of(" \t\r\n", start), m_rest.size());
    const std::string_view result = m_rest.substr(start, end - start);
    m_rest.remove_prefix(end);
    return result;
}

std::int64_t PlyWalk::count(std::string_view text) const
{
    std::int64_t result = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), result).ec != std::errc()
        || result < 0)
        throw ReadFailure(m_file.path(), noNumber(text));
    return result;
}

const PlyType& PlyWalk::type(std::string_view name) const
{
    static const std::map<std::string_view, PlyType> types {{"char", typeOf<signed char>()},
                                                            {"int8", typeOf<signed char>()},
                                                            {"uchar", typeOf<unsigned char>()},
                                                            {"uint8", typeOf<unsigned char>()},
                                                            {"short", typeOf<short>()},
                                                            {"int16", typeOf<short>()},
                                                            {"ushort", typeOf<unsigned short>()},
                                                            {"uint16", typeOf<unsigned short>()},
                                                            {"int", typeOf<int>()},
                                                            {"int32", typeOf<int>()},
                                                            {"uint", typeOf<unsigned int>()},
                                                            {"uint32", typeOf<unsigned int>()},
                                                            {"float", typeOf<float>()},
                                                            {"float32", typeOf<float>()},
                                                            {"double", typeOf<double>()},
                                                            {"float64", typeOf<double>()}};
    const auto found = types.find(name);
    if (found == types.end())
        throw ReadFailure(m_file.path(),
                          QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no type of numbers"),
                          {shown(name)});
    return found->second;
}

void PlyWalk::readHeader()
{
    for (std::string_view key = word(); key != "end_header"; key = word()) {
        if (key == "format") {
            const std::string_view format = word();
            m_isText = format == "ascii";
            m_isBigEndian = format == "binary_big_endian";
        } else if (key == "element") {
            const std::string_view name = word();
            m_elements.push_back({name, count(word()), {}});
        } else if (key == "property" && !m_elements.empty())
            addProperty();
        else if (key == "comment" || key == "obj_info")
            m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
    }
    m_rest.remove_prefix(std::min(m_rest.find('\n') + 1, m_rest.size()));
}

void PlyWalk::addProperty()
{
    PlyElement& element = m_elements.back();
    PlyProperty property;
    std::string_view typeName = word();
    if (typeName == "list") {
        property.countType = type(word());
        typeName = word();
    }
    property.type = type(typeName);
    property.name = word();
    const bool isPlace = property.name == "x" || property.name == "y" || property.name == "z";
    if (!property.isList() && (element.name == "face" || (element.name == "vertex" && !isPlace))) {
        property.values.TakeReference(vtkDataArray::CreateDataArray(property.type.vtkType));
        property.values->SetName(std::string(property.name).c_str());
    }
    element.properties.push_back(property);
}

/// What is no number in it sets the fault.
static void take(PlyProperty& property, std::string_view text)
{
    const std::optional<double> number = numberOf(text);
    if (number && property.type.holds(*number)) {
        property.values->InsertNextTuple1(*number);
        return;
    }
    property.fault = noNumber(text);
    property.values = nullptr;
}

void PlyWalk::passText(PlyProperty& property)
{
    const std::int64_t numbers = property.isList() ? count(word()) : 1;
    for (std::int64_t i = 0; i < numbers; ++i) {
        const std::string_view text = word();
        if (property.values)
            take(property, text);
    }
}

void PlyWalk::passBinary(PlyProperty& property)
{
    const auto require = [this](double bytes) {
        if (!(bytes >= 0 && bytes <= static_cast<double>(m_rest.size())))
            failCut();
    };
    double numbers = 1;
    if (property.isList()) {
        require(static_cast<double>(property.countType.size));
        numbers = property.countType.decode(m_rest.data(), m_isBigEndian);
        m_rest.remove_prefix(property.countType.size);
    }
    require(numbers * static_cast<double>(property.type.size));
    if (property.values)
        property.values->InsertNextTuple1(property.type.decode(m_rest.data(), m_isBigEndian));
    m_rest.remove_prefix(static_cast<std::size_t>(numbers) * property.type.size);
}

} // namespace corvala::host::io::reader
