// ORTHOLAN_EXPORT marks what the built library shows to applications; everything else is hidden.
//
// ORTHOLAN_BUILDING is defined while the shared library itself is compiled, ORTHOLAN_STATIC by
// whoever compiles or uses the static library.

#ifndef ORTHOLAN_EXPORT_H_
#define ORTHOLAN_EXPORT_H_

#if !defined(_WIN32)
// Stands before every class and function that crosses the library's border.
#define ORTHOLAN_EXPORT __attribute__((visibility("default")))
#elif defined(ORTHOLAN_STATIC)
#define ORTHOLAN_EXPORT
#elif defined(ORTHOLAN_BUILDING)
#define ORTHOLAN_EXPORT __declspec(dllexport)
#else
#define ORTHOLAN_EXPORT __declspec(dllimport)
#endif

// Defined where programs leave the library's instantiations of templates to the library. Those of a
// DLL do not: g++ exports no member that is defined in its class, and without optimisation a
// program would ask for it; Visual C++ exports the bases of an exported class by itself.
#if defined(__GNUC__) && \
    (!defined(_WIN32) || defined(ORTHOLAN_STATIC) || defined(ORTHOLAN_BUILDING))
#define ORTHOLAN_EXTERN_TEMPLATES
#endif

#endif  // ORTHOLAN_EXPORT_H_
