// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Enumerations of the interface; the engine behind it uses the same.
#include <vocabulary/enums.h>
