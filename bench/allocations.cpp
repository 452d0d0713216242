#include "allocations.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>

// Qt allocates by malloc, the library by new as well, which comes down to malloc: so that is where calls are
// counted, in front of the C library's own. The sanitizers stand there themselves; nothing is counted then.

namespace {

std::atomic<std::size_t> allocated{0};

} // namespace

#ifndef __SANITIZE_ADDRESS__

extern "C" {

// The C library's names for its own allocator, which stay reachable behind the functions below.
// NOLINTBEGIN(bugprone-reserved-identifier)
void * __libc_malloc(std::size_t size);
void * __libc_calloc(std::size_t number, std::size_t size);
void * __libc_realloc(void * memory, std::size_t size);

// NOLINTEND(bugprone-reserved-identifier)

void * malloc(std::size_t size)
{
    allocated.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void * calloc(std::size_t number, std::size_t size)
{
    allocated.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(number, size);
}

void * realloc(void * memory, std::size_t size)
{
    allocated.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}

} // extern "C"

#endif

namespace kestrova::bench {

std::size_t allocations()
{
    return allocated.load(std::memory_order_relaxed);
}

std::size_t heapBytes()
{
    return mallinfo2().uordblks;
}

} // namespace kestrova::bench
