#pragma once

#include <cstdint>

namespace kestrova::hardening {

/// At least as many bytes as the memory of the process has grown by what the calling thread has written,
/// since some time before. It counts memory that the thread is the first to touch: not what others allocate,
/// and not what it takes of memory that the process has had before.
std::int64_t bytesTouchedByThisThread();

} // namespace kestrova::hardening
