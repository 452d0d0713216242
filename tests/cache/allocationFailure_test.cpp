#include "cache/driverCache.h"

#include <gtest/gtest.h>

#include <new>

namespace {

int allocationsThatSucceed = -1; // any number

} // namespace

// Catalogues are created with this form of new; the test decides when it fails.
void * operator new(std::size_t size, std::nothrow_t const &) noexcept
{
    if (allocationsThatSucceed == 0)
        return nullptr;
    if (allocationsThatSucceed > 0)
        --allocationsThatSucceed;
    return ::operator new(size);
}

using namespace kestrova::Morvel::Devicelore;

TEST(CacheWithoutMemory, ThrowsWhicheverCatalogueCannotBeCreated)
{
    constexpr int catalogues = 8;
    for (int succeeding = 0; succeeding < catalogues; ++succeeding) {
        allocationsThatSucceed = succeeding;
        EXPECT_THROW(CDriverCache(), CMemoryException) << "catalogue " << succeeding;
    }
    allocationsThatSucceed = catalogues;
    EXPECT_NO_THROW(CDriverCache());
    allocationsThatSucceed = -1;
}

TEST(CacheWithoutMemory, TheExceptionIsCaughtAsItsBaseToo)
{
    allocationsThatSucceed = 0;
    EXPECT_THROW(CDriverCache(), CException);
    allocationsThatSucceed = -1;
}
