// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Marks what a program that loads the module may use; everything else is hidden.
#define ZONESTYLE_EXPORT __attribute__((visibility("default")))
