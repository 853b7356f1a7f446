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

#if defined(_MSC_VER)
#define ORTHOLAN_CLASSES_BEGIN __pragma(warning(push)) __pragma(warning(disable : 4251 4275))
#define ORTHOLAN_CLASSES_END __pragma(warning(pop))
#else
// Stands before the exported classes of a header. Visual C++ warns that members and bases of
// standard types are not exported with them (C4251, C4275); they need not be, because program and
// DLL share one runtime.
#define ORTHOLAN_CLASSES_BEGIN
// Stands behind them.
#define ORTHOLAN_CLASSES_END
#endif

// Defined where programs leave the library's instantiations of templates to the library. Those of a
// DLL that g++ builds have their own beside the exported one, so that they run with a DLL that does
// not export every member; Visual C++ exports the bases of an exported class by itself.
#if defined(__GNUC__) && \
    (!defined(_WIN32) || defined(ORTHOLAN_STATIC) || defined(ORTHOLAN_BUILDING))
#define ORTHOLAN_EXTERN_TEMPLATES
#endif

#endif  // ORTHOLAN_EXPORT_H_
