#pragma once

#include <string>

namespace ls {

/// Gives `from` the name `to` and never replaces what has that name, also when it appears at the same moment.
/// The result is an errno, EEXIST for a taken name, 0 for success.
[[nodiscard]] int RenameToNewName(const std::string& from, const std::string& to);

/// The three ways behind it, from the best to the last resort. Each keeps that rule; EINVAL, ENOSYS,
/// EOPNOTSUPP and, from the second, EPERM mean that the file system does not know this way.
[[nodiscard]] int RenameByFlag(const std::string& from, const std::string& to);

/// A second name for the file, then the first one is taken away.
[[nodiscard]] int RenameByLink(const std::string& from, const std::string& to);

/// An empty file takes the name, which only one can do; the rename then replaces that file.
[[nodiscard]] int RenameByReservation(const std::string& from, const std::string& to);

} // namespace ls
