// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/schema.h"

#include <algorithm>
#include <cstring>

namespace corvala::host {

static constexpr std::uint64_t kHashSeed = 14695981039346656037ULL;

/// FNV-1a over the name and a separator.
static std::uint64_t hashName(std::uint64_t hash, std::string_view name)
{
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    return (hash ^ 0xffU) * 1099511628211ULL;
}

const Schema& Schema::instance()
{
    static const Schema schema;
    return schema;
}

Schema::Schema()
{
    m_buckets.resize(1024);
    for (const style::Entry& entry : style::allEntries)
        add(entry);
    std::sort(m_names.begin(), m_names.end());
    m_names.erase(std::unique(m_names.begin(), m_names.end()), m_names.end());
}

void Schema::add(const style::Entry& entry)
{
    Attribute attribute;
    static_cast<style::Facts&>(attribute) = entry;
    attribute.id = static_cast<AttributeId>(m_attributes.size());
    attribute.names.assign(entry.path.begin(), entry.path.begin() + entry.length());
    attribute.defaultText = entry.defaultText;
    auto& scope = m_scopes[static_cast<std::size_t>(attribute.scope)];
    attribute.slot = static_cast<int>(scope.size());
    scope.push_back(attribute.id);
    m_names.insert(m_names.end(), attribute.names.begin(), attribute.names.end());

    std::uint64_t hash = kHashSeed;
    for (std::size_t length = 1; length <= attribute.names.size(); ++length) {
        hash = hashName(hash, attribute.names[length - 1]);
        Bucket& place = m_buckets[bucketFor(hash)];
        const bool isLeaf = length == attribute.names.size();
        if (place.id == kNoAttribute)
            place = {hash,
                     isLeaf ? attribute.id : kGroupAttribute,
                     {attribute.names.begin(),
                      attribute.names.begin() + static_cast<std::ptrdiff_t>(length)}};
    }
    m_attributes.push_back(std::move(attribute));
}

std::size_t Schema::bucketFor(std::uint64_t hash) const
{
    std::size_t position = hash % m_buckets.size();
    while (m_buckets[position].id != kNoAttribute && m_buckets[position].hash != hash)
        position = (position + 1) % m_buckets.size();
    return position;
}

AttributeId Schema::find(const char* const* names, int count) const
{
    std::uint64_t hash = kHashSeed;
    int length = 0;
    for (; length < count && names[length]; ++length)
        hash = hashName(hash, names[length]);
    const Bucket& place = m_buckets[bucketFor(hash)];
    if (place.id == kNoAttribute || place.names.size() != static_cast<std::size_t>(length))
        return kNoAttribute;
    for (int i = 0; i < length; ++i)
        if (place.names[static_cast<std::size_t>(i)] != names[i])
            return kNoAttribute;
    return place.id;
}

AttributeId Schema::find(const std::vector<std::string>& names) const
{
    constexpr std::size_t kLongest = 8;
    if (names.empty() || names.size() > kLongest)
        return kNoAttribute;
    const char* pointers[kLongest];
    for (std::size_t i = 0; i < names.size(); ++i)
        pointers[i] = names[i].c_str();
    return find(pointers, static_cast<int>(names.size()));
}

int Schema::nameId(std::string_view name) const
{
    const auto found = std::lower_bound(m_names.begin(), m_names.end(), name);
    return found != m_names.end() && *found == name ? static_cast<int>(found - m_names.begin())
                                                    : -2;
}

const char* Schema::nameOf(int nameId) const
{
    return nameId >= 0 && nameId < static_cast<int>(m_names.size())
        ? m_names[static_cast<std::size_t>(nameId)].c_str()
        : nullptr;
}

} // namespace corvala::host
