// Put in front of SQLite, lets it give itself out as the newest version that is too old.

extern "C" int sqlite3_libversion_number()
{
    return 3037002;
}

extern "C" char const * sqlite3_libversion()
{
    return "3.37.2";
}
