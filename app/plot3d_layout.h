// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"

#include <QString>

#include <optional>
#include <vector>

namespace corvala::app {

/// Sets what a text such as "format=binary,grids=many" says; a value of "auto" leaves it to the
/// reader. Empty on success, else what is wrong; the layout is then unchanged.
QString parsePlot3DLayout(const QString& text, host::io::Plot3DLayout& layout);

/// The layout as parsePlot3DLayout takes it, without what is left to the reader.
QString plot3DLayoutText(const host::io::Plot3DLayout& layout);

/// The layout in words, such as "binary, several grids, big endian".
QString describePlot3DLayout(const host::io::Plot3DLayout& layout);

/// One property of a layout: its key and words on the command line, and its texts in dialogs.
struct Plot3DProperty
{
    const char* key;
    const char* yes; ///< word for true
    const char* no; ///< word for false
    const char* label; ///< untranslated, context "Plot3D", as are the two below
    const char* yesText;
    const char* noText;
    std::optional<bool> host::io::Plot3DLayout::*value;
};

const std::vector<Plot3DProperty>& plot3DProperties();

} // namespace corvala::app
