// Ownership of memory from malloc().
#pragma once

#include <cstdlib>
#include <memory>

struct free_malloced {
    void operator()(void* memory) const { std::free(memory); }
};

/// Owns memory from malloc(), calloc() or realloc(), for interfaces that hand such memory over.
template <class T>
using malloced = std::unique_ptr<T, free_malloced>;
