// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/read_count.h"

#include "sdk/base/cvl.h"

namespace corvala::host_access {

CvlInt64 readCount = 0;

} // namespace corvala::host_access

CvlInt64 CvlAppGetReadCount(void)
{
    return corvala::host_access::readCount;
}
