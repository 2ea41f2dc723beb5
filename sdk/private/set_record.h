// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"

/// What a set handle points to.
struct CvlSetRecord
{
    corvala::host::NumberSet members;
};
