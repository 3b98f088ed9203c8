#ifndef WIN32_EXPORT_H
#define WIN32_EXPORT_H

/// @file
/// What is exported from the shared library and what stays inside.

/// @def HYDROFACTS_API
/// Marks what a host may link against. Everything else stays inside the shared library.
/// HYDROFACTS_STATIC: the code is linked statically (tests of the inside).
/// HYDROFACTS_BUILDING: the library itself is being compiled.
#if defined(HYDROFACTS_STATIC)
#define HYDROFACTS_API
#elif !defined(_WIN32)
#define HYDROFACTS_API __attribute__((visibility("default")))
#elif defined(HYDROFACTS_BUILDING)
#define HYDROFACTS_API __declspec(dllexport)
#else
#define HYDROFACTS_API __declspec(dllimport)
#endif

/// @def HYDROFACTS_HIDDEN
/// Marks members of an exported class that no host can name, so that the library reaches them
/// directly.
#ifdef _WIN32
#define HYDROFACTS_HIDDEN
#else
#define HYDROFACTS_HIDDEN __attribute__((visibility("hidden")))
#endif

/// @def HYDROFACTS_STATIC_TLS
/// Marks a small variable of a thread that is used all the time: it lies where the thread finds it
/// without asking the loader, also if the library was loaded after the thread began.
#ifdef _WIN32
#define HYDROFACTS_STATIC_TLS
#else
#define HYDROFACTS_STATIC_TLS __attribute__((tls_model("initial-exec")))
#endif

#endif
