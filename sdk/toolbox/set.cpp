// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/toolbox/set.h"

#include "sdk/base/cvl.h"
#include "sdk/private/set_record.h"

#include <limits>
#include <utility>

namespace corvala::toolbox {

Set::Set()
    : m_handle(new CvlSetRecord)
{
}

Set::Set(const Set& other)
    : m_handle(other.m_handle ? new CvlSetRecord(*other.m_handle) : new CvlSetRecord)
{
}

Set::Set(Set&& other) noexcept
    : m_handle(std::exchange(other.m_handle, nullptr))
{
}

Set& Set::operator=(Set other) noexcept
{
    std::swap(m_handle, other.m_handle);
    return *this;
}

Set::~Set()
{
    delete m_handle;
}

bool Set::add(CvlInt64 member)
{
    return addRange(member, member);
}

bool Set::addRange(CvlInt64 first, CvlInt64 last)
{
    if (first < 1 || last < first || last > std::numeric_limits<std::uint32_t>::max())
        return false;
    if (!m_handle)
        m_handle = new CvlSetRecord;
    m_handle->members.addRange(static_cast<std::uint64_t>(first),
                               static_cast<std::uint64_t>(last) + 1);
    return true;
}

bool Set::isEmpty() const
{
    return CvlUtilSetIsEmpty(m_handle) != 0;
}

CvlInt64 Set::next(CvlInt64 previous) const
{
    return CvlUtilSetGetNextMember(m_handle, previous);
}

SetIterator::SetIterator(CvlSetHandle set, CvlInt64 previous)
    : m_set(set)
    , m_member(CvlUtilSetGetNextMember(set, previous))
{
}

CvlInt64 Set::count() const
{
    return CvlUtilSetGetMemberCount(m_handle);
}

bool Set::contains(CvlInt64 member) const
{
    return m_handle && member >= 1 && member <= std::numeric_limits<std::uint32_t>::max()
        && m_handle->members.contains(static_cast<std::uint32_t>(member));
}

} // namespace corvala::toolbox
