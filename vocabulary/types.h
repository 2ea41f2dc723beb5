// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <stdint.h>

/** 0 is false, any other value true; results are 0 or 1. */
typedef int32_t CvlBool;

/** Counts, numbers (from 1; 0 means none) and codes. */
typedef int64_t CvlInt64;

/** Identifies a frame for the life of the process; 0 is never a frame. */
typedef uint64_t CvlUniqueId;

/** A set of numbers; made by CvlUtilSetAlloc and freed by CvlUtilSetDealloc. */
typedef struct CvlSetRecord* CvlSetHandle;

/** An integer or an address, as the operation that returns it says. */
typedef intptr_t CvlArbValue;
