// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"
#include "host/operations/operation_text.h"
#include "samples/demo_data.h"
#include "tests/support/enum_text.h"

#include <QStringList>

#include <stdexcept>

namespace corvala::tests {

inline host::Document& document()
{
    return host::Document::instance();
}

inline const host::Frame& frame()
{
    return *document().activeFrame();
}

/// Embedded data in a document without anything else.
inline void openOnly(const char* demo, std::int64_t scale = 0)
{
    std::string error;
    document().clear();
    if (!samples::openDemo(demo, scale, error))
        throw std::runtime_error(error);
}

/// An operation from its text, such as {"deleteMaps": "2,4"}.
inline host::Operation operationOf(const char* text)
{
    return host::operationFromJson(nlohmann::json::parse(text), {document().activeFrame(), {}});
}

inline StyleWriteResult_e execute(const char* text)
{
    return document().execute(operationOf(text)).result;
}

inline int fieldValue(const std::vector<std::string>& path, CvlInt64 map)
{
    return std::get<std::int32_t>(document().read(path, map).value());
}

inline QString text(const host::NumberSet& set)
{
    return QString::fromStdString(host::toText(set, 0));
}

/// The values of one attribute, one line each.
inline QStringList stateOf(const host::Frame& frame, const host::Attribute& attribute)
{
    using host::Scope;
    const bool isOfMap = attribute.scope == Scope::FieldMap || attribute.scope == Scope::LineMap;
    const CvlInt64 places = attribute.scope == Scope::FieldMap ? frame.fieldMapCount()
        : isOfMap                                              ? frame.lineMapCount()
                                                               : std::max(1, attribute.indexCount);
    QStringList lines;
    for (CvlInt64 place = 1; place <= places; ++place) {
        const auto value = document().read(frame.id(), attribute.id, isOfMap ? place : 0, place);
        lines << QStringLiteral("%1 %2 = %3")
                     .arg(QString::fromStdString(attribute.names.back()))
                     .arg(place)
                     .arg(value ? QString::fromStdString(host::toJson(*value).dump()) : "nothing");
    }
    return lines;
}

/// All of the document that undo brings back, as text: what is not in it is where one looks (the
/// active frame, the solution time, the picks).
inline QStringList documentState()
{
    QStringList lines;
    for (CvlInt64 position = 1; position <= document().frameCount(); ++position) {
        const host::Frame& frame = *document().frameAt(position);
        for (const host::Attribute& attribute : host::Schema::instance().all())
            lines << stateOf(frame, attribute);
        lines << text(frame.enabledZones()) << text(frame.enabledVariables());
        for (std::int64_t zone = 1; frame.hasData() && zone <= frame.data()->zoneCount(); ++zone)
            lines << QString::fromStdString(frame.data()->zone(zone).name)
                  << QString::number(frame.data()->zone(zone).sourceIndex);
        for (std::int64_t i = 1; frame.hasData() && i <= frame.data()->variableCount(); ++i)
            lines << QString::fromStdString(frame.data()->variable(i).name);
    }
    for (int color = 0; color < 64; ++color)
        lines << QString::number(document().color(color).red);
    return lines;
}

} // namespace corvala::tests
