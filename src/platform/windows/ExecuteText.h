#pragma once

#include <string>
#include <string_view>

namespace ls {

/// The text of an execute request.
struct ExecuteText
{
    bool wide = false; ///< UTF-16; else the system's narrow code page
    std::string bytes; ///< without the NUL that ends the text and what follows it
};

/// Detects the coding of an execute string. The system promises narrow text to a server that asks for it, but
/// some wide clients still send UTF-16. A command begins with an ASCII letter, whose second byte is 0 only in
/// UTF-16.
[[nodiscard]] ExecuteText ReadExecuteText(std::string_view data);

} // namespace ls
