#pragma once

/// Marks the symbols that a shared library exports: the builders, the types that a host reaches
/// through them, and what the engine and the surfaces use. Other symbols are hidden. Static
/// libraries export no symbols, so a host's shared library that contains one does not either.
///
/// A class that one library makes and another casts to must be exported even if all its members are
/// inline. Otherwise each library has its own type and the cast fails.
#if defined(QUORIX_STATIC) || defined(_WIN32)
#define QUORIX_EXPORT
#define QUORIX_HIDDEN
#else
#define QUORIX_EXPORT __attribute__((visibility("default")))
#define QUORIX_HIDDEN __attribute__((visibility("hidden")))  // for members of an exported class
#endif
