// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"
#include "host/style/schema.h"
#include "samples/demo_data.h"

#include <QString>
#include <QStringList>

#include <stdexcept>

namespace corvala::tests {

inline host::Document& document()
{
    return host::Document::instance();
}

inline void openDemo(const char* name, std::int64_t scale = 0)
{
    std::string error;
    document().clear();
    if (!samples::openDemo(name, scale, error))
        throw std::runtime_error(error);
}

inline host::NumberSet mapsOf(const char* text)
{
    host::NumberSet set;
    if (!host::fromText(text, document().activeFrame()->shownMapCount(), set))
        throw std::runtime_error(text);
    return set;
}

/// Writes a style value; `path` is separated by slashes, `maps` as in "1-3,7" or "all", empty for a
/// value of the frame. Fails the test program for a value that is not accepted.
inline void write(const char* path, const char* maps, double value, std::int64_t offset = -1)
{
    host::SetStyle set {{}, value, {}, offset};
    for (const QString& name : QString::fromUtf8(path).split(QLatin1Char('/')))
        set.path.push_back(name.toStdString());
    if (*maps != '\0')
        set.maps = mapsOf(maps);
    if (!document().execute(set).isDone())
        throw std::runtime_error(path);
}

/// Writes values of the shown maps or of the frame: "PATH=VALUE", "PATH[INDEX]=VALUE", separated by
/// blanks.
inline void editStyle(const QString& texts, const QByteArray& maps = "all")
{
    for (const QString& text : texts.split(' ', Qt::SkipEmptyParts)) {
        const QString value = text.section('=', 1);
        const char* group = document().activeFrame()->isLinePlot() ? "LineMap" : "FieldMap";
        host::SetStyle set {{group}, value.toStdString(), mapsOf(maps.constData())};
        for (const QString& name : text.section('=', 0, 0).section('[', 0, 0).split('/'))
            set.path.push_back(name.toStdString());
        if (host::Schema::instance().find(set.path) < 0) {
            set.path.erase(set.path.begin());
            set.maps.reset();
        }
        bool isNumber = false;
        if (const double number = value.toDouble(&isNumber); isNumber)
            set.value = number;
        if (text.contains('['))
            set.index = text.section('[', 1).section(']', 0, 0).toInt();
        if (!document().execute(set).isDone())
            throw std::runtime_error(text.toStdString());
    }
}

/// Adds maps to the active ones, or removes them.
inline void activate(const char* maps, bool on)
{
    const AssignOp_e op = on ? AssignOp_Add : AssignOp_Remove;
    if (!document()
             .execute(host::SetStyle {{"ActiveFieldMaps"}, mapsOf(maps), {}, -1, op})
             .isDone())
        throw std::runtime_error(maps);
}

} // namespace corvala::tests
