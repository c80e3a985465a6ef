#pragma once

/// On what a shared library of ours gives to others: the builders and what a host reaches through
/// them, and what the engine and the surfaces need of the libraries below them. All else is hidden.
/// Static libraries give nothing on: a host's own library that holds one does not export it.
///
/// A class that is made in one library and known by its type in another needs it even where all its
/// members are inline, or the two would have a type each.
#if defined(QUORIX_STATIC) || defined(_WIN32)
#define QUORIX_EXPORT
#define QUORIX_HIDDEN
#else
#define QUORIX_EXPORT __attribute__((visibility("default")))
#define QUORIX_HIDDEN __attribute__((visibility("hidden")))  // what stands in an exported class
#endif
