// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/composite_layer.h"

#include "plot/field/scene/bucket.h"

#include <vtkRenderer.h>

#include <algorithm>
#include <set>

namespace corvala::plot {

CompositeLayer::CompositeLayer(FieldLayer layer, bool flat, vtkRenderer& back, vtkRenderer& front)
    : m_layer(layer)
    , m_flat(flat)
    , m_back(back)
    , m_front(front)
{
}

CompositeLayer::~CompositeLayer()
{
    clear();
}

void CompositeLayer::clear()
{
    m_blocks.clear();
    m_blockCount = 0;
    for (const auto& [look, bucket] : m_buckets)
        (look.inFront ? m_front : m_back).RemoveActor(bucket->actor());
    m_buckets.clear();
}

CompositeLayer::Bucket& CompositeLayer::bucketOf(const MapperLook& look)
{
    std::unique_ptr<Bucket>& bucket = m_buckets[look];
    if (!bucket) {
        bucket = std::make_unique<Bucket>(look, m_layer, m_flat);
        bucket->setScale(m_scale);
        bucket->actor()->SetVisibility(m_visible && !m_hidden);
        (look.inFront ? m_front : m_back).AddActor(bucket->actor());
    }
    return *bucket;
}

void CompositeLayer::place(Block& block)
{
    if (block.data) {
        block.bucket = &bucketOf(block.look.mapper);
        block.bucket->add(block.map, block.data, block.look.color);
        ++m_blockCount;
    }
}

void CompositeLayer::remove(Block& block)
{
    if (block.bucket) {
        block.bucket->remove(block.map);
        block.bucket = nullptr;
        --m_blockCount;
    }
}

void CompositeLayer::dropEmptyBuckets()
{
    for (auto it = m_buckets.begin(); it != m_buckets.end();) {
        if (it->second->isEmpty()) {
            (it->first.inFront ? m_front : m_back).RemoveActor(it->second->actor());
            it = m_buckets.erase(it);
        } else {
            ++it;
        }
    }
}

static bool isSameMapper(const MapperLook& left, const MapperLook& right)
{
    return !(left < right) && !(right < left);
}

static bool isSameColor(const host::Rgb& left, const host::Rgb& right)
{
    return left.red == right.red && left.green == right.green && left.blue == right.blue;
}

bool CompositeLayer::builds(CvlInt64 map, const std::optional<BlockLook>& look) const
{
    const auto found = m_blocks.find(map);
    return look && (found == m_blocks.end() || !(found->second.look.recipe == look->recipe));
}

void CompositeLayer::sync(CvlInt64 map, const std::optional<BlockLook>& look, const Builder& build)
{
    const auto found = m_blocks.find(map);
    if (!look) {
        if (found != m_blocks.end()) {
            remove(found->second);
            m_blocks.erase(found);
            ++m_counters.removed;
            dropEmptyBuckets();
        }
        return;
    }
    const bool rebuilds = builds(map, look);
    Block& block = m_blocks[map];
    const bool moves = rebuilds || !isSameMapper(block.look.mapper, look->mapper);
    const bool recolors = !isSameColor(block.look.color, look->color);
    if (moves)
        remove(block);
    block.map = map;
    block.look = *look;
    if (rebuilds) {
        block.data = build(look->recipe);
        ++m_counters.built;
    }
    if (moves) {
        place(block);
        m_counters.moved += rebuilds ? 0 : 1;
        dropEmptyBuckets();
    } else if (recolors && block.bucket) {
        block.bucket->setColor(map, look->color);
        ++m_counters.recolored;
    }
}

void CompositeLayer::setVisible(bool visible)
{
    m_visible = visible;
    updateVisibility();
}

void CompositeLayer::setHidden(bool hidden)
{
    m_hidden = hidden;
    updateVisibility();
}

void CompositeLayer::updateVisibility()
{
    for (const auto& [look, bucket] : m_buckets)
        bucket->actor()->SetVisibility(m_visible && !m_hidden);
}

void CompositeLayer::setScale(const ViewScale& scale)
{
    m_scale = scale;
    for (const auto& [look, bucket] : m_buckets) {
        bucket->setScale(scale);
        bucket->arrange();
    }
}

void CompositeLayer::updateLevels(const ContourGroups& groups)
{
    for (const auto& [look, bucket] : m_buckets)
        bucket->updateLevels(groups);
}

double CompositeLayer::widestLine() const
{
    double widest = 0.0;
    for (const auto& [look, bucket] : m_buckets)
        if (look.thickness > 0.0 && !look.inFront && m_visible)
            widest = std::max(widest, bucket->linePixels());
    return widest;
}

void CompositeLayer::setWidestLine(double pixels)
{
    for (const auto& [look, bucket] : m_buckets)
        bucket->setWidestLine(pixels);
}

std::vector<int> CompositeLayer::groupsInUse() const
{
    std::set<int> groups;
    for (const auto& [map, block] : m_blocks) {
        const BlockRecipe& recipe = block.look.recipe;
        if (block.bucket && block.look.mapper.floodGroup > 0)
            groups.insert(block.look.mapper.floodGroup);
        if (block.bucket && recipe.colorGroup > 0 && recipe.colorGroup < ContourGroups::kRed)
            groups.insert(recipe.colorGroup);
    }
    return {groups.begin(), groups.end()};
}

bool CompositeLayer::draws(CvlInt64 map) const
{
    return m_visible && geometry(map);
}

vtkPolyData* CompositeLayer::geometry(CvlInt64 map) const
{
    const auto found = m_blocks.find(map);
    return found == m_blocks.end() ? nullptr : found->second.data.Get();
}

std::vector<vtkActor*> CompositeLayer::actors() const
{
    std::vector<const Bucket*> buckets;
    for (const auto& [look, bucket] : m_buckets)
        buckets.push_back(bucket.get());
    std::stable_sort(buckets.begin(), buckets.end(), [](const auto* left, const auto* right) {
        return left->lowestMap() < right->lowestMap();
    });
    std::vector<vtkActor*> result;
    for (const Bucket* bucket : buckets)
        result.push_back(bucket->actor());
    return result;
}

} // namespace corvala::plot
