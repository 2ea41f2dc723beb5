// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/base/types.h>

namespace corvala::toolbox {

using ::AssignOp_Add;
using ::AssignOp_e;
using ::AssignOp_None;
using ::AssignOp_Remove;

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
    CvlInt64 count() const;
    bool contains(CvlInt64 member) const;
    CvlSetHandle handle() const { return m_handle; } ///< stays owned by the Set

private:
    CvlSetHandle m_handle; ///< null after a move, which counts as empty
};

} // namespace corvala::toolbox
