#pragma once

// Functions that must become part of their callers for a layout to be read or written in registers, and those that must
// not.
#if defined(__GNUC__)
#define HERALD_IN_LINE [[gnu::always_inline]] inline
#define HERALD_FLATTEN [[gnu::flatten]]
#define HERALD_OUT_OF_LINE [[gnu::noinline]]
#else
#define HERALD_IN_LINE inline
#define HERALD_FLATTEN
#define HERALD_OUT_OF_LINE
#endif
