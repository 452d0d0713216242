// Put in front of SQLite, lets it give itself out as the version of the environment variable
// PRETENDED_SQLITE, a number such as 3037002.

#include <cstdio>
#include <cstdlib>

extern "C" int sqlite3_libversion_number()
{
    return std::atoi(std::getenv("PRETENDED_SQLITE"));
}

extern "C" char const * sqlite3_libversion()
{
    static char text[16];
    int const number = sqlite3_libversion_number();
    std::snprintf(text, sizeof text, "%d.%d.%d", number / 1000000, number / 1000 % 1000, number % 1000);
    return text;
}
