#pragma once

#include <cstdlib>
#include <memory>

struct free_malloced {
    void operator()(void* memory) const { std::free(memory); }
};

/// Owns memory from malloc() and its like, where an interface or the allocator's ways ask for it.
template <class T>
using malloced = std::unique_ptr<T, free_malloced>;
