// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/block_tree.h"

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkPartitionedDataSet.h>
#include <vtkPartitionedDataSetCollection.h>

namespace corvala::host::io::reader {

std::string cleanName(const char* name, const std::string& fallback)
{
    QString text = QString::fromUtf8(name);
    if (text.contains(QChar::ReplacementCharacter))
        text = QString::fromLatin1(name);
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character.isNonCharacter())
            character = QLatin1Char(' ');
    text = text.trimmed();
    return text.isEmpty() ? fallback : text.toStdString();
}

class LeafCollector
{
public:
    void visit(vtkDataObject* object)
    {
        if (auto* blocks = vtkMultiBlockDataSet::SafeDownCast(object))
            visitChildren(*blocks, blocks->GetNumberOfBlocks(), "Block ",
                          [=](unsigned int i) { return blocks->GetBlock(i); });
        else if (auto* pieces = vtkPartitionedDataSet::SafeDownCast(object))
            visitChildren(*pieces, pieces->GetNumberOfPartitions(), "Piece ",
                          [=](unsigned int i) { return pieces->GetPartitionAsDataObject(i); });
        else if (auto* sets = vtkPartitionedDataSetCollection::SafeDownCast(object))
            visitChildren(*sets, sets->GetNumberOfPartitionedDataSets(), "Block ",
                          [=](unsigned int i) { return sets->GetPartitionedDataSet(i); });
        else
            addLeaf(object);
    }

    std::vector<LeafBlock> leaves;
    bool hasNames = false; ///< of blocks

private:
    template<class Composite, class Child>
    void visitChildren(Composite& parent, unsigned int count, const char* word, Child child)
    {
        for (unsigned int i = 0; i < count; ++i) {
            const char* name = parent.HasMetaData(i)
                ? parent.GetMetaData(i)->Get(vtkCompositeDataSet::NAME())
                : nullptr;
            hasNames = hasNames || (name && *name);
            m_names.push_back(cleanName(name, word + std::to_string(i + 1)));
            visit(child(i));
            m_names.pop_back();
        }
    }

    void addLeaf(vtkDataObject* object)
    {
        auto* data = vtkDataSet::SafeDownCast(object);
        leaves.push_back({m_names, data && data->GetNumberOfPoints() > 0 ? data : nullptr});
    }

    std::vector<std::string> m_names;
};

std::vector<LeafBlock> leafBlocks(vtkDataObject* root)
{
    LeafCollector collector;
    collector.visit(root);
    if (collector.leaves.size() == 1 && !collector.hasNames)
        collector.leaves.front().names.clear();
    return std::move(collector.leaves);
}

} // namespace corvala::host::io::reader
