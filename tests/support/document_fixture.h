// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"
#include "samples/demo_data.h"

#include <sdk/toolbox/style_value.h>
#include <sdk/uicommon/style_writing.h>

#include <QtTest>

namespace corvala::tests {

/// Opens embedded data in an empty document; `scale` 0 is the usual size.
inline void openDemo(const std::string& name, std::int64_t scale = 0)
{
    host::Document::instance().clear();
    std::string error;
    QVERIFY2(samples::openDemo(name, scale, error), error.c_str());
}

inline toolbox::Set setOf(std::initializer_list<CvlInt64> members)
{
    toolbox::Set set;
    for (const CvlInt64 member : members)
        set.add(member);
    return set;
}

/// A value of a line map of the active frame; -999 when it cannot be read.
inline double lineValue(const char* group, const char* name, CvlInt64 map)
{
    return toolbox::StyleValue("LineMap", group, name).read<double>(map).value_or(-999.0);
}

inline double frameValue(const char* group, const char* name)
{
    return toolbox::StyleValue(group, name).read<double>().value_or(-999.0);
}

inline int undoSteps()
{
    return host::Document::instance().undo().stepCount();
}

} // namespace corvala::tests
