#pragma once

#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) <= 201703L
#error "Herald needs C++20: compile with -std=c++20, or /std:c++20"
#endif

// HERALD_API marks what the shared library exports. A static build defines HERALD_STATIC for itself and its users.
#if defined(HERALD_STATIC)
#define HERALD_API
#elif defined(_WIN32)
#ifdef HERALD_BUILDING
#define HERALD_API __declspec(dllexport)
#elif defined(__MINGW32__)
// The linker imports by itself. With dllimport it would also look in the library for the inline constants of the
// classes, which that compiler does not export.
#define HERALD_API
#else
#define HERALD_API __declspec(dllimport)
#endif
#else
#define HERALD_API __attribute__((visibility("default")))
#endif

// What is no class, but an argument of templates that are exported: with clang these are as visible as it is.
#if defined(_WIN32)
#define HERALD_VISIBLE
#else
#define HERALD_VISIBLE HERALD_API
#endif
