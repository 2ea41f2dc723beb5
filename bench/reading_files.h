// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDir>
#include <QString>

namespace corvala::bench {

/// A tree of `count` blocks of `side` points in each direction, with a scalar and a vector; base64,
/// compressed. Returns the path.
QString writeBlocks(const QDir& folder, int count, int side);

/// One unstructured zone of `side` hexahedra in each direction, with a scalar; raw bytes, which are
/// the quickest to read.
QString writeHexahedra(const QDir& folder, int side);

} // namespace corvala::bench
