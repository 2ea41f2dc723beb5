// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_request.h"

#include <QCoreApplication>

namespace corvala::host::io {

static void append(QStringList& words, const std::optional<bool>& flag, const char* yes,
                   const char* no)
{
    if (flag && *(*flag ? yes : no))
        words << QCoreApplication::translate("Plot3DLayout", *flag ? yes : no);
}

QString describe(const Plot3DLayout& layout)
{
    QStringList words;
    append(words, layout.ascii, QT_TRANSLATE_NOOP("Plot3DLayout", "text"),
           QT_TRANSLATE_NOOP("Plot3DLayout", "binary"));
    if (!layout.ascii.value_or(false)) {
        append(words, layout.bigEndian, QT_TRANSLATE_NOOP("Plot3DLayout", "big-endian"),
               QT_TRANSLATE_NOOP("Plot3DLayout", "little-endian"));
        append(words, layout.doublePrecision, QT_TRANSLATE_NOOP("Plot3DLayout", "double precision"),
               QT_TRANSLATE_NOOP("Plot3DLayout", "single precision"));
        append(words, layout.byteCount, QT_TRANSLATE_NOOP("Plot3DLayout", "with record marks"), "");
    }
    append(words, layout.multiGrid, QT_TRANSLATE_NOOP("Plot3DLayout", "several grids"),
           QT_TRANSLATE_NOOP("Plot3DLayout", "one grid"));
    append(words, layout.iblank, QT_TRANSLATE_NOOP("Plot3DLayout", "with iblank"), "");
    append(words, layout.twoDimensional, QT_TRANSLATE_NOOP("Plot3DLayout", "two-dimensional"), "");
    return words.join(QStringLiteral(", "));
}

QStringList describe(const ReadOffers& offers)
{
    QStringList sentences;
    if (const auto count = static_cast<int>(offers.numberedFiles); count > 0)
        sentences << QCoreApplication::translate(
            "ReadOffers",
            "%n file(s) without times are shown together; the numbers in their names can be times.",
            nullptr, count);
    if (const auto count = static_cast<int>(offers.boundaryPatches); count > 0)
        sentences << QCoreApplication::translate(
            "ReadOffers", "%n boundary patch(es) were not read.", nullptr, count);
    return sentences;
}

} // namespace corvala::host::io
