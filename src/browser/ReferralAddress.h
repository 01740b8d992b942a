#pragma once

#include <string>

namespace ls {

/// The book's address as an argument for the browser. It comes from whoever wrote the book, so it must be an
/// address and nothing else: one without a scheme gets "http://", lest "--option" is taken for an option, and
/// a double quote is written as %22, lest it ends the argument and begins another.
[[nodiscard]] std::string AddressToOpen(const std::string& bookUrl);

} // namespace ls
