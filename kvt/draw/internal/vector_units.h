#ifndef KVT_DRAW_INTERNAL_VECTOR_UNITS_H
#define KVT_DRAW_INTERNAL_VECTOR_UNITS_H

// Which vector code a build has, decided here once.
//
// KVT_X86_VECTORS: the SSE2 paths (always there on x86-64) and the AVX2
// ones (chosen at run time).
// KVT_VECTOR_KERNELS: the kernels written with GCC's vector extensions,
// which the compiler turns into NEON on ARM and SSE2 on x86. They serve
// 64-bit ARM always, 32-bit ARM when the processor says it has NEON, and
// are built on x86 too, where the tests prove them equal to the plain
// paths.
//
// KVT_PORTABLE (the CMake option of that name) leaves every vector path
// out, so that the portable paths, all that a processor without a vector
// unit runs, can be built, tested and timed on any machine.

#if !defined(KVT_PORTABLE) && defined(__SSE2__)
#define KVT_X86_VECTORS 1
#endif

#if !defined(KVT_PORTABLE) && (defined(__SSE2__) || defined(__aarch64__) || defined(__arm__))
#define KVT_VECTOR_KERNELS 1
#endif

#endif
