#pragma once

// HERALD_API marks what the shared library exports. A static build defines HERALD_STATIC for itself and its users.
#if defined(HERALD_STATIC)
#define HERALD_API
#elif defined(_WIN32)
#ifdef HERALD_BUILDING
#define HERALD_API __declspec(dllexport)
#else
#define HERALD_API __declspec(dllimport)
#endif
#else
#define HERALD_API __attribute__((visibility("default")))
#endif
