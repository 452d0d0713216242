#include "hardening/touchedMemory.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace kestrova::hardening {

namespace {

/// By how much the process grows at most when a thread touches memory for the first time: a page, which is a
/// huge one where the kernel gives them to everybody.
std::int64_t largestPage()
{
    constexpr std::int64_t hugePage = std::int64_t(2) * 1024 * 1024;
    std::ifstream choices("/sys/kernel/mm/transparent_hugepage/enabled"); // such as "always [madvise] never"
    std::string line;
    std::getline(choices, line);
    return line.find("[always]") == std::string::npos ? sysconf(_SC_PAGESIZE) : hugePage;
}

} // namespace

std::int64_t bytesTouchedByThisThread()
{
    static std::int64_t const page = largestPage();
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt * page;
}

} // namespace kestrova::hardening
