// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace corvala::host::io::reader {

/// What a VTK XML file of files lists: a file, or a block of files and further blocks.
struct PieceNode
{
    QString name; ///< empty where the file gives none
    const char* word = "Block "; ///< in front of the number of what has no name
    std::int64_t index = 0; ///< among its neighbours, from 0; files may skip any number of them
    QString file; ///< absolute; empty for a block, and for a place that is left empty
    bool isBlock = false;
    std::vector<PieceNode> children {}; ///< by index
};

struct PieceTree
{
    PieceNode root;
    bool hasLevels = false; ///< its blocks are levels of refined grids
    bool isCutOff = false; ///< what it lists so far is in the tree
};

/// Of a tree of blocks, a partitioned data set or levels of grids. Throws ReadFailure.
PieceTree pieceTree(const QString& path);

/// The files that a parallel file names.
QStringList piecesOf(const QString& path);

} // namespace corvala::host::io::reader
