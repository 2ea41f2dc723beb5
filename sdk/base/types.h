/* SPDX-License-Identifier: BSD-3-Clause */
#pragma once

/** Plain types of the interface; the engine behind it uses the same. */
#include <vocabulary/types.h>
