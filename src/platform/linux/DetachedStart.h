#pragma once

#include <string>
#include <vector>

namespace ls {

/// The result of a start: the process id, or the errno of the call that failed.
struct DetachedProcess
{
    int errnoValue = 0;
    int id = 0;
};

/// Starts `program` in a session of its own. `words` are its arguments; the first is its own name.
///
/// The new program inherits no descriptors (its three standard ones are the null device) and no ignored or
/// blocked signals. This program need not wait for its end.
[[nodiscard]] DetachedProcess StartDetached(const std::string& program,
                                            const std::vector<std::string>& words);

} // namespace ls
