#pragma once

#include <vector>

namespace kestrova::authoring {

enum class Severity {
    Error,   ///< an application gets something wrong, or nothing
    Warning, ///< probably not what the author meant
    Hint,    ///< allowed, and worth a look
};

/// One thing that can be wrong with a description.
struct Rule {
    char const * name; ///< stable: baselines and --ignore hold it
    Severity severity;
    char const * summary; ///< what is wrong
    char const * effect;  ///< what the library does then
    char const * advice;  ///< what to do about it
};

/// In alphabetical order.
std::vector<Rule> const & rules();

/// Null when there is no such rule.
Rule const * findRule(char const * name);

char const * severityName(Severity severity);

} // namespace kestrova::authoring
