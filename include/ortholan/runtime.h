// Has the linker of Visual C++ refuse a program that was compiled for another runtime than the DLL:
// memory and exceptions cross its border, and /MT or /MDd against /MD would be two heaps. The
// program asks for ORTHOLAN_RUNTIME, which the DLL has by the one name alone. The C interface needs
// no such agreement.
#ifndef ORTHOLAN_RUNTIME_H_
#define ORTHOLAN_RUNTIME_H_

// A function of Visual C++'s DLL, by the runtime that it was compiled for.
#if defined(_MSC_VER)
#if !defined(_DLL)
#define ORTHOLAN_RUNTIME ortholan_compiled_with_MT
#elif defined(_DEBUG)
#define ORTHOLAN_RUNTIME ortholan_compiled_with_MDd
#else
#define ORTHOLAN_RUNTIME ortholan_compiled_with_MD
#endif
#endif

#if defined(ORTHOLAN_RUNTIME) && !defined(ORTHOLAN_STATIC) && !defined(ORTHOLAN_BUILDING)
#define ORTHOLAN_QUOTED(name) #name
#define ORTHOLAN_INCLUDED(name) "/include:" ORTHOLAN_QUOTED(name)
#pragma comment(linker, ORTHOLAN_INCLUDED(ORTHOLAN_RUNTIME))
#undef ORTHOLAN_INCLUDED
#undef ORTHOLAN_QUOTED
#endif

#endif  // ORTHOLAN_RUNTIME_H_
