#pragma once

#include <cstddef>

namespace kestrova::bench {

/// Heap allocations of the whole process so far, by whatever means.
std::size_t allocations();

/// Bytes that lie allocated on the heap at present, with what the allocator needs for itself.
std::size_t heapBytes();

} // namespace kestrova::bench
