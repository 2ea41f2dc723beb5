// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_dialect.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace corvala::host::io {

/// How a Plot3D file is laid out; the reader detects what is left empty.
struct Plot3DLayout
{
    std::optional<bool> ascii;
    std::optional<bool> multiGrid;
    std::optional<bool> iblank;
    std::optional<bool> byteCount; ///< Fortran record marks
    std::optional<bool> bigEndian;
    std::optional<bool> doublePrecision;
    std::optional<bool> twoDimensional;
};

/// One line for the user, such as "binary, big-endian, single precision, one grid"; what is empty
/// is left out.
QString describe(const Plot3DLayout& layout);

/// What a file may cost before reading it is given up.
struct ReadLimits
{
    std::int64_t memoryBytes = 0; ///< address space of the reader; 0 is 3/4 of the machine's memory
    int patienceMilliseconds = 20'000; ///< longest standstill: of bytes read, memory, progress
};

/// What is read of files, or made of them, only when it is wanted.
struct ReadChoices
{
    bool boundaryPatches = false; ///< of CGNS files, as zones of their own
    bool numberedTimes =
        false; ///< files without times are one strand by the numbers in their names
};

/// What would come of choices that were not made: how many patches, and files.
struct ReadOffers
{
    std::int64_t boundaryPatches = 0;
    std::int64_t numberedFiles = 0;
};

/// A sentence for each offer.
QStringList describe(const ReadOffers& offers);

/// What is wanted of files.
enum class ReadPurpose {
    Data,
    DataIfSure, ///< a preview where tables of text could be meant in several ways
    Preview ///< of the first table of text
};

struct ReadRequest
{
    QStringList files; ///< opened together as one data set
    Plot3DLayout plot3d;
    TextDialect text;
    ReadChoices choices;
    ReadPurpose purpose = ReadPurpose::Data;
    ReadLimits limits;
};

} // namespace corvala::host::io
