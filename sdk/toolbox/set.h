// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/base/types.h>

#include <cstddef>
#include <iterator>

namespace corvala::toolbox {

using ::AssignOp_Add;
using ::AssignOp_e;
using ::AssignOp_None;
using ::AssignOp_Remove;

/// Goes through the members of a set of the host in ascending order; the set must not change
/// meanwhile.
class SetIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = CvlInt64;
    using difference_type = std::ptrdiff_t;
    using pointer = const CvlInt64*;
    using reference = CvlInt64;

    /// The first member that follows a number.
    SetIterator(CvlSetHandle set, CvlInt64 previous);

    CvlInt64 operator*() const { return m_member; }
    SetIterator& operator++() { return *this = SetIterator(m_set, m_member); }
    friend bool operator==(const SetIterator& one, const SetIterator& other)
    {
        return one.m_member == other.m_member;
    }
    friend bool operator!=(const SetIterator& one, const SetIterator& other)
    {
        return !(one == other);
    }

private:
    friend class SetMembers;
    SetIterator() = default;

    CvlSetHandle m_set = nullptr;
    CvlInt64 m_member = 0; ///< 0 at the end
};

/// The members of a set of the host, for a range-based loop; the set stays its owner's.
class SetMembers
{
public:
    explicit SetMembers(CvlSetHandle set)
        : m_set(set)
    {
    }

    SetIterator begin() const { return {m_set, 0}; }
    SetIterator end() const { return {}; }

private:
    CvlSetHandle m_set;
};

/// A set of map numbers (1 to 4294967295), ascending, compressed: ranges cost next to nothing.
class Set
{
public:
    Set();
    Set(const Set& other);
    Set(Set&& other) noexcept;
    Set& operator=(Set other) noexcept;
    ~Set();

    bool add(CvlInt64 member); ///< false for a number out of range; duplicates are kept once
    bool addRange(CvlInt64 first, CvlInt64 last); ///< both ends included
    bool isEmpty() const;
    CvlInt64 next(CvlInt64 previous) const; ///< ascending; 0 starts, 0 ends
    SetIterator begin() const { return SetMembers(m_handle).begin(); }
    SetIterator end() const { return SetMembers(m_handle).end(); }
    CvlInt64 count() const;
    bool contains(CvlInt64 member) const;
    CvlSetHandle handle() const { return m_handle; } ///< stays owned by the Set

private:
    CvlSetHandle m_handle; ///< null after a move, which counts as empty
};

} // namespace corvala::toolbox
