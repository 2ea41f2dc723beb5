// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace corvala::samples {

/// Names of the embedded data: "field2d", "field3d", "kinds", "transient", "xy", "polar".
std::vector<std::string> demoNames();

/// Embedded data, and how they are opened.
struct DemoData
{
    std::shared_ptr<host::DataSet> data;
    PlotType_e plotType = PlotType_None;
    std::int64_t lineMaps = 0;
};

/// Makes embedded data; null, with the reason in `error`, as openDemo says.
DemoData demoData(const std::string& name, std::int64_t scale, std::string& error);

/// Opens embedded data in the active frame of the document (one is made when there is none).
/// `scale` is the number of zones of "field2d" and "field3d" or of line maps of "xy" and "polar",
/// 1 to 1,000,000; 0 takes the usual number (12 or 6); the others do not scale. False, with the
/// reason in `error`, for an unknown name or a bad number; the document is then unchanged.
bool openDemo(const std::string& name, std::int64_t scale, std::string& error);

} // namespace corvala::samples
