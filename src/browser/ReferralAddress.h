#pragma once

#include <string>

namespace ls {

/// The book's address as an argument for the browser. The author of a book is not trusted, so the argument
/// must be an address and nothing else. An address without a scheme gets "http://", so that "--option" is no
/// option. A double quote becomes %22, so that it does not end the argument and begin another.
[[nodiscard]] std::string AddressToOpen(const std::string& bookUrl);

} // namespace ls
