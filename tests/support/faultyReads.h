#pragma once

namespace kestrova::test {

/// How a read of a database file goes wrong.
enum class ReadFault {
    Error,  ///< the disk reports an error
    Short,  ///< only the first half comes, as at the end of a file
    Damage, ///< one bit of what comes is wrong, and nobody says so
};

/// A default file system for SQLite that makes one read of a database that is open for reading go wrong.
/// install() before the process opens its first database; the reads are those of all connections.
class FaultyReads {
public:
    static void install();

    /// Counts the reads from 1 again, and lets the one of that number go wrong; none of number 0.
    static void arm(int number, ReadFault fault);

    /// The reads since arm().
    static int count();
};

} // namespace kestrova::test
