#pragma once

#include <string>

namespace ls {

/// Renames `from` to `to` and never replaces an existing `to`, even if it appears at the same moment. Returns
/// an errno: EEXIST for a taken name, 0 for success.
[[nodiscard]] int RenameToNewName(const std::string& from, const std::string& to);

/// The three methods that RenameToNewName tries, best first; none replaces a file. EINVAL, ENOSYS, EOPNOTSUPP
/// and, from the second, EPERM mean that the file system does not support the method.
[[nodiscard]] int RenameByFlag(const std::string& from, const std::string& to);

/// Gives the file a second name, then removes the first one.
[[nodiscard]] int RenameByLink(const std::string& from, const std::string& to);

/// Creates an empty file of the new name, which only one process can do; the rename then replaces that file.
[[nodiscard]] int RenameByReservation(const std::string& from, const std::string& to);

} // namespace ls
