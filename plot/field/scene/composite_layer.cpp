// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/composite_layer.h"

#include "plot/field/scene/bucket.h"
#include "plot/field/scene/slow_release.h"

#include <vtkRenderer.h>

#include <algorithm>
#include <numeric>
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
    for (const auto& bucket : m_buckets)
        rendererOf(bucket->look()).RemoveActor(bucket->actor());
}

/// The blocks by look, in the order of the lowest map of each part; `byRun` begins a part anew
/// after maps that look otherwise.
std::vector<CompositeLayer::Part> CompositeLayer::parts(bool byRun) const
{
    std::vector<Part> parts;
    std::map<MapperLook, std::size_t> open;
    for (auto block = m_blocks.begin(); block != m_blocks.end(); ++block) {
        if (block->second.pieces.empty())
            continue;
        const MapperLook& look = block->second.look.mapper;
        if (byRun && open.count(look) == 0)
            open.clear();
        const auto part = open.try_emplace(look, parts.size());
        if (part.second)
            parts.emplace_back();
        parts[part.first->second].push_back(block);
    }
    return parts;
}

/// What one mapper draws.
struct CompositeLayer::Share
{
    MapperLook look;
    CvlInt64 firstMap = 0; ///< of the range of maps that it belongs to
    std::vector<Bucket::Block> blocks;
};

static vtkIdType costOf(const ShapePieces& pieces, const MapperLook& look)
{
    vtkIdType cost = 0;
    for (const auto& piece : pieces)
        cost += static_cast<vtkIdType>(drawingCost(*piece, look));
    return cost;
}

/// Adds the shares of the maps from `first` on, `count` of them, of a part. Ranges of map numbers
/// are halved until a mapper draws one in a moment: where they end does not depend on what is in
/// them, so that the edit of a map is of no concern to other ranges.
void CompositeLayer::addShares(Part::const_iterator begin, Part::const_iterator end, CvlInt64 first,
                               CvlInt64 count, std::vector<Share>& shares)
{
    if (begin == end)
        return;
    const MapperLook& look = (*begin)->second.look.mapper;
    const auto addCost = [&](vtkIdType cost, const auto& block) {
        return cost + costOf(block->second.pieces, look);
    };
    if (count > 1
        && (count > kMostMaps
            || std::accumulate(begin, end, vtkIdType {0}, addCost) > kLargestPiece)) {
        const CvlInt64 half = count / 2;
        const auto middle = std::partition_point(
            begin, end, [&](const auto& block) { return block->first < first + half; });
        addShares(begin, middle, first, half, shares);
        addShares(middle, end, first + half, half, shares);
        return;
    }
    vtkIdType size = kLargestPiece;
    for (; begin != end; ++begin) {
        for (const auto& piece : (*begin)->second.pieces) {
            const auto added = static_cast<vtkIdType>(drawingCost(*piece, look));
            if (size + added > kLargestPiece) {
                shares.push_back({look, first, {}});
                size = 0;
            }
            shares.back().blocks.push_back({piece, (*begin)->second.look.color, (*begin)->first});
            size += added;
        }
    }
}

std::vector<CompositeLayer::Share> CompositeLayer::shares() const
{
    std::vector<Part> drawn = parts(!m_flat);
    if (drawn.size() > kMostMappers)
        drawn = parts(false);
    std::vector<Share> shares;
    for (const Part& part : drawn)
        addShares(part.begin(), part.end(), 0, mapCount(), shares);
    return shares;
}

/// A power of two that is above the number of each map, so that it seldom changes.
CvlInt64 CompositeLayer::mapCount() const
{
    CvlInt64 count = 16;
    while (!m_blocks.empty() && count <= m_blocks.rbegin()->first)
        count *= 2;
    return count;
}

void CompositeLayer::arrange()
{
    std::multimap<std::pair<MapperLook, CvlInt64>, std::unique_ptr<Bucket>> free;
    for (std::unique_ptr<Bucket>& bucket : m_buckets)
        free.emplace(std::pair(bucket->look(), bucket->firstMap()), std::move(bucket));
    m_buckets.clear();
    for (Share& share : shares()) {
        const auto known = free.lower_bound({share.look, share.firstMap});
        if (known != free.end() && known->first == std::pair(share.look, share.firstMap)) {
            m_buckets.push_back(std::move(known->second));
            free.erase(known);
        } else {
            m_buckets.push_back(
                std::make_unique<Bucket>(share.look, share.firstMap, m_layer, m_flat));
            rendererOf(share.look).AddActor(m_buckets.back()->actor());
        }
        m_buckets.back()->setBlocks(std::move(share.blocks), mapCount());
    }
    for (const auto& [key, bucket] : free)
        rendererOf(bucket->look()).RemoveActor(bucket->actor());
    m_isArranged = true;
    updateVisibility();
}

bool CompositeLayer::builds(CvlInt64 map, const std::optional<BlockLook>& look) const
{
    const auto found = m_blocks.find(map);
    return look && (found == m_blocks.end() || !(found->second.look.recipe == look->recipe));
}

void CompositeLayer::sync(CvlInt64 map, const std::optional<BlockLook>& look, const Builder& build)
{
    if (!look) {
        const std::size_t removed = m_blocks.erase(map);
        m_counters.removed += static_cast<std::int64_t>(removed);
        m_isArranged = m_isArranged && removed == 0;
        return;
    }
    const bool rebuilds = builds(map, look);
    Block& block = m_blocks[map];
    const bool moves = !rebuilds && !(block.look.mapper == look->mapper);
    const bool recolors = !rebuilds && !moves && !isSameColor(block.look.color, look->color);
    block.look = *look;
    if (rebuilds)
        block.pieces = build(look->recipe);
    m_counters.built += rebuilds ? 1 : 0;
    m_counters.moved += moves ? 1 : 0;
    m_counters.recolored += recolors ? 1 : 0;
    m_isArranged = m_isArranged && !rebuilds && !moves && !recolors;
}

void CompositeLayer::giveUp(SlowRelease& release)
{
    for (auto& [map, block] : m_blocks)
        for (auto& piece : block.pieces)
            release.take(std::move(piece));
    m_blocks.clear();
    m_isArranged = false;
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
    for (const auto& bucket : m_buckets)
        bucket->actor()->SetVisibility(m_visible && !m_hidden);
}

void CompositeLayer::prepare(const ViewScale& scale, const ContourGroups& groups)
{
    if (!m_isArranged)
        arrange();
    for (const auto& bucket : m_buckets) {
        bucket->setScale(scale);
        bucket->updateLevels(groups);
    }
}

double CompositeLayer::widestLine() const
{
    double widest = 0.0;
    for (const auto& bucket : m_buckets)
        if (bucket->look().thickness > 0.0 && !bucket->look().inFront && m_visible)
            widest = std::max(widest, bucket->linePixels());
    return widest;
}

void CompositeLayer::setWidestLine(double pixels)
{
    for (const auto& bucket : m_buckets)
        bucket->setWidestLine(pixels);
}

std::vector<int> CompositeLayer::groupsInUse() const
{
    std::set<int> groups;
    for (const auto& [map, block] : m_blocks) {
        const BlockRecipe& recipe = block.look.recipe;
        if (!block.pieces.empty() && block.look.mapper.floodGroup > 0)
            groups.insert(block.look.mapper.floodGroup);
        if (!block.pieces.empty() && recipe.colorGroup > 0
            && recipe.colorGroup < ContourGroups::kRed)
            groups.insert(recipe.colorGroup);
    }
    return {groups.begin(), groups.end()};
}

bool CompositeLayer::hasGeometry() const
{
    return std::any_of(m_blocks.begin(), m_blocks.end(),
                       [](const auto& block) { return !block.second.pieces.empty(); });
}

std::int64_t CompositeLayer::cost() const
{
    std::int64_t cost = 0;
    for (const auto& [map, block] : m_blocks)
        cost += m_visible ? costOf(block.pieces, block.look.mapper) : 0;
    return cost;
}

vtkBoundingBox CompositeLayer::bounds() const
{
    vtkBoundingBox box;
    for (const auto& [map, block] : m_blocks)
        for (const auto& piece : block.pieces)
            box.AddBounds(piece->GetBounds());
    return box;
}

bool CompositeLayer::draws(CvlInt64 map) const
{
    return m_visible && geometry(map);
}

bool CompositeLayer::uses(CvlInt64 map, const SurfaceChoice& surface) const
{
    const auto found = m_blocks.find(map);
    return found != m_blocks.end() && found->second.look.recipe.surfaces == surface;
}

const ShapePieces& CompositeLayer::pieces(CvlInt64 map) const
{
    static const ShapePieces kNone;
    const auto found = m_blocks.find(map);
    return found == m_blocks.end() ? kNone : found->second.pieces;
}

vtkPolyData* CompositeLayer::geometry(CvlInt64 map) const
{
    const ShapePieces& found = pieces(map);
    return found.empty() ? nullptr : found.front().Get();
}

std::vector<vtkActor*> CompositeLayer::actors() const
{
    std::vector<vtkActor*> result;
    for (const auto& bucket : m_buckets)
        result.push_back(bucket->actor());
    return result;
}

std::vector<std::int64_t> CompositeLayer::actorSizes() const
{
    std::vector<std::int64_t> result;
    for (const auto& bucket : m_buckets)
        result.push_back(bucket->size());
    return result;
}

} // namespace corvala::plot
