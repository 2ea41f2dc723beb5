// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_patches.h"

#include "host/io/reader/patch_grid.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>

#include <map>
#include <utility>

namespace corvala::host::io::reader {

CgnsPatches::CgnsPatches(const QString& path, bool areWanted)
    : m_fileName(QFileInfo(path).fileName())
{
    const CgnsTree file(path);
    if (!file.isOpen())
        return;
    if (!areWanted) {
        m_unreadCount = boundaryCount(file);
        return;
    }
    for (BoundaryPatch& patch : boundariesOf(file)) {
        if (patch.fault.isEmpty())
            m_patches.push_back(std::move(patch));
        else
            leaveOut(patch, patch.fault);
    }
}

void CgnsPatches::leaveOut(const BoundaryPatch& patch, const ReadMessage& fault)
{
    m_notes.emplace_back(
        QT_TRANSLATE_NOOP("ReadMessage", "%1: the boundary patch %2 of %3 was left out: %4."),
        std::initializer_list<QString> {m_fileName, QString::fromStdString(patch.name),
                                        QString::fromStdString(patch.zone), fault.asArgument()});
}

static std::string nameOf(vtkMultiBlockDataSet& tree, unsigned block)
{
    const char* const name = tree.HasMetaData(block)
        ? tree.GetMetaData(block)->Get(vtkCompositeDataSet::NAME())
        : nullptr;
    return name ? name : "";
}

/// Returns the block of this name below `tree`, which is made when there is none.
static vtkMultiBlockDataSet& branch(vtkMultiBlockDataSet& tree, const std::string& name)
{
    const unsigned count = tree.GetNumberOfBlocks();
    for (unsigned i = 0; i < count; ++i)
        if (auto* const found = vtkMultiBlockDataSet::SafeDownCast(tree.GetBlock(i)))
            if (nameOf(tree, i) == name)
                return *found;
    const auto made = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    tree.SetBlock(count, made);
    tree.GetMetaData(count)->Set(vtkCompositeDataSet::NAME(), name.c_str());
    return *made;
}

static void append(vtkMultiBlockDataSet& tree, const std::string& name, vtkDataObject* block)
{
    const unsigned count = tree.GetNumberOfBlocks();
    tree.SetBlock(count, block);
    tree.GetMetaData(count)->Set(vtkCompositeDataSet::NAME(), name.c_str());
}

void CgnsPatches::addTo(vtkMultiBlockDataSet& root)
{
    using Place = std::pair<std::string, std::string>; // base and zone
    std::map<Place, vtkPointSet*> zones;
    std::map<std::string, vtkMultiBlockDataSet*> bases;
    std::map<std::pair<Place, std::string>, int> families; // with how many patches
    for (unsigned i = 0; i < root.GetNumberOfBlocks(); ++i) {
        auto* const base = vtkMultiBlockDataSet::SafeDownCast(root.GetBlock(i));
        if (!base)
            continue;
        bases[nameOf(root, i)] = base;
        for (unsigned j = 0; j < base->GetNumberOfBlocks(); ++j)
            zones[{nameOf(root, i), nameOf(*base, j)}] =
                vtkPointSet::SafeDownCast(base->GetBlock(j));
    }
    for (const BoundaryPatch& patch : m_patches)
        ++families[{{patch.base, patch.zone}, patch.family}];
    for (BoundaryPatch& patch : m_patches) {
        const Place place {patch.base, patch.zone};
        vtkPointSet* const zone = zones[place];
        if (!zone || !patch.fault.isEmpty())
            continue;
        const vtkSmartPointer<vtkPointSet> grid = patchGrid(*zone, patch);
        if (!grid) {
            patch.fault = pointsMissing();
            leaveOut(patch, patch.fault);
            continue;
        }
        vtkMultiBlockDataSet& ofZone = branch(*bases[patch.base], patch.zone);
        if (patch.family.empty())
            append(ofZone, patch.name, grid);
        else if (families[{place, patch.family}] == 1)
            append(ofZone, patch.family, grid);
        else
            append(branch(ofZone, patch.family), patch.name, grid);
    }
}

} // namespace corvala::host::io::reader
