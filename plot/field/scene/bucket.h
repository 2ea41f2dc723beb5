// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/block_mapper.h"
#include "plot/field/scene/composite_layer.h"

#include <vtkActor.h>
#include <vtkCompositeDataDisplayAttributes.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkTexture.h>
#include <vtkTransform.h>

#include <cstdint>
#include <string>
#include <vector>

namespace corvala::plot {

/// What drawing a piece costs, as shapeCost.
std::int64_t drawingCost(vtkPolyData& piece, const MapperLook& look);

/// One composite mapper with its actor, and the blocks that it draws.
class CompositeLayer::Bucket
{
public:
    struct Block
    {
        vtkSmartPointer<vtkPolyData> data;
        host::Rgb color;
        CvlInt64 map = 0;

        bool operator==(const Block& other) const
        {
            return data == other.data && isSameColor(color, other.color) && map == other.map;
        }
    };

    /// `firstMap` tells the buckets of a look apart.
    Bucket(const MapperLook& look, CvlInt64 firstMap, FieldLayer layer, bool flat);

    const MapperLook& look() const { return m_look; }
    CvlInt64 firstMap() const { return m_firstMap; }
    vtkActor* actor() const { return m_actor; }

    /// What is drawn, in this order; `mapCount` is at least the number of any map.
    void setBlocks(std::vector<Block> blocks, CvlInt64 mapCount);
    void setScale(const ViewScale& scale);
    void updateLevels(const ContourGroups& groups);
    /// Moves faces far enough back for lines of this width to be whole.
    void setWidestLine(double pixels);
    double linePixels() const { return m_linePixels; }
    /// What drawing the blocks costs, as shapeCost.
    std::int64_t size() const { return m_size; }

private:
    /// What the mapper is given: a shallow copy of the data of a block.
    struct Shell
    {
        vtkSmartPointer<vtkPolyData> data;
        vtkSmartPointer<vtkPolyData> source;
    };

    bool hasBlockColors() const { return m_look.floodGroup == 0 && !m_look.ownColors; }
    void setProperties();
    void setDepth(FieldLayer layer, bool flat);
    void setDepthShader(const std::string& depth);
    float stepsBack(CvlInt64 map, CvlInt64 mapCount) const;

    MapperLook m_look;
    CvlInt64 m_firstMap;
    vtkNew<vtkActor> m_actor;
    vtkNew<BlockMapper> m_mapper;
    vtkNew<vtkMultiBlockDataSet> m_drawn;
    vtkNew<vtkCompositeDataDisplayAttributes> m_attributes;
    vtkSmartPointer<vtkTexture> m_texture;
    vtkNew<vtkTransform> m_textureTransform;
    double m_linePixels = 1.0;
    std::int64_t m_size = 0;
    float m_layersInFront = -1.0F; ///< of faces, from this one to the last; negative for others
    int m_textureBands = 0;
    ColorScale m_textureColors;
    std::vector<Block> m_blocks;
    CvlInt64 m_mapCount = 0;
    std::vector<Shell> m_shells;
};

} // namespace corvala::plot
