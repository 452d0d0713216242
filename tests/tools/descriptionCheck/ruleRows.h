#pragma once

#include <vector>

namespace kestrova::test {

/// Something broken in a set of databases that is good otherwise.
struct BadRow {
    char const * rule;
    char const * change;       ///< to the good database a.db3
    char const * nextDatabase; ///< b.db3, if not empty
    char const * dspData;      ///< DspData.sqlite, if not empty
    char const * findings;     ///< a line each
};

std::vector<BadRow> const & badRows();

/// Something that a rule must not take for broken.
struct GoodRow {
    char const * rule;
    char const * change;
    char const * nextDatabase;
};

std::vector<GoodRow> const & goodRows();

} // namespace kestrova::test
