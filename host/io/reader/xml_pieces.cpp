// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/xml_pieces.h"

#include "host/io/reader/read_failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace corvala::host::io::reader {

static constexpr int kDeepest = 50; ///< of blocks in blocks

static QString attribute(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

/// Collects the tree of a file.
class TreeParser
{
public:
    explicit TreeParser(const QString& path)
        : m_folder(QFileInfo(path).dir())
        , m_file(path)
    {
        m_file.open(QIODevice::ReadOnly);
        m_xml.setDevice(&m_file);
    }

    PieceTree parse()
    {
        PieceTree tree;
        tree.root.isBlock = true;
        if (m_xml.readNextStartElement() && m_xml.readNextStartElement()) {
            const QString kind = m_xml.name().toString();
            tree.hasLevels =
                kind.contains(QLatin1String("AMR")) || kind.contains(QLatin1String("Hierarchical"));
            m_hasLevels = tree.hasLevels;
            addChildren(tree.root, kind == QLatin1String("vtkPartitionedDataSet"), 0);
        }
        tree.isCutOff = m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError;
        if (m_xml.hasError() && !tree.isCutOff)
            throw ReadFailure(m_file.fileName(), QT_TRANSLATE_NOOP("ReadMessage", "line %1: %2"),
                              {QString::number(m_xml.lineNumber()), m_xml.errorString()});
        return tree;
    }

private:
    void addChildren(PieceNode& parent, bool isPartitioned, int depth)
    {
        if (depth > kDeepest)
            throw ReadFailure(m_file.fileName(),
                              QT_TRANSLATE_NOOP("ReadMessage", "its blocks are nested too deeply"));
        while (m_xml.readNextStartElement()) {
            const QString kind = m_xml.name().toString();
            const bool isFile = kind == QLatin1String("DataSet");
            const bool holdsPieces =
                kind == QLatin1String("Piece") || kind == QLatin1String("Partitions");
            if (!isFile && !holdsPieces && kind != QLatin1String("Block")) {
                m_xml.skipCurrentElement();
                continue;
            }
            PieceNode node = nodeOf(isFile, parent, isPartitioned);
            addChildren(node, holdsPieces, depth + 1);
            if (kind == QLatin1String("Partitions") && node.children.size() == 1)
                node = asPartition(node);
            target(parent, isFile).children.push_back(std::move(node));
        }
        std::stable_sort(parent.children.begin(), parent.children.end(),
                         [](const PieceNode& a, const PieceNode& b) { return a.index < b.index; });
    }

    /// Old files tell by an attribute of each file in which block it is.
    PieceNode& target(PieceNode& parent, bool isFile) const
    {
        if (!isFile || m_group < 0)
            return parent;
        for (PieceNode& child : parent.children)
            if (child.index == m_group)
                return child;
        PieceNode block;
        block.index = m_group;
        block.isBlock = true;
        parent.children.push_back(block);
        return parent.children.back();
    }

    /// A partition that is all there is takes the place of what is partitioned.
    static PieceNode asPartition(const PieceNode& node)
    {
        PieceNode only = node.children.front();
        only.name = node.name;
        only.word = node.word;
        only.index = node.index;
        return only;
    }

    PieceNode nodeOf(bool isFile, const PieceNode& parent, bool isPartitioned)
    {
        PieceNode node;
        node.isBlock = !isFile;
        node.name = attribute(m_xml, "name");
        node.word = isPartitioned ? "Piece " : "Block ";
        bool isGroup = false;
        m_group = attribute(m_xml, "group").toLongLong(&isGroup);
        m_group = isGroup ? m_group : -1;
        const char* const key = isGroup ? "dataset" : m_hasLevels && !isFile ? "level" : "index";
        bool isNumber = false;
        node.index = attribute(m_xml, key).toLongLong(&isNumber);
        if (!isNumber || node.index < 0)
            node.index = parent.children.empty() ? 0 : parent.children.back().index + 1;
        if (m_hasLevels && !isFile && node.name.isEmpty())
            node.name = QStringLiteral("Level %1").arg(node.index);
        const QString file = attribute(m_xml, "file");
        if (isFile && !file.isEmpty())
            node.file = m_folder.absoluteFilePath(file);
        return node;
    }

    QDir m_folder;
    QFile m_file;
    QXmlStreamReader m_xml;
    bool m_hasLevels = false;
    std::int64_t m_group = -1; ///< of the file that is met; -1 for none
};

PieceTree pieceTree(const QString& path)
{
    return TreeParser(path).parse();
}

QStringList piecesOf(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    QStringList result;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("Piece")
            && xml.attributes().hasAttribute(QLatin1String("Source")))
            result << QFileInfo(path).dir().absoluteFilePath(attribute(xml, "Source"));
    return result;
}

} // namespace corvala::host::io::reader
