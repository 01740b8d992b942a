#pragma once

#include <string>
#include <vector>

namespace ls {

/// What a start came to: the process id, or the errno of the call that failed.
struct DetachedProcess
{
    int errnoValue = 0;
    int id = 0;
};

/// Starts `program` with `words` as its arguments (the first is its own name) in a session of its own.
///
/// Nothing of this program goes with it: no descriptor (its three standard ones are the null device), no
/// ignored or blocked signal. It is nobody's child that would have to be waited for.
[[nodiscard]] DetachedProcess StartDetached(const std::string& program,
                                            const std::vector<std::string>& words);

} // namespace ls
