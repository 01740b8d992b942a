#pragma once

#include <string>
#include <string_view>

namespace ls {

/// What came with an execute request.
struct ExecuteText
{
    bool wide = false; ///< UTF-16, else the system's narrow code page
    std::string bytes; ///< without the NUL that ends the text and what lies behind it
};

/// Tells the form of an execute string by its bytes. The system promises narrow text to a server that asked
/// for it, yet clients that are themselves wide are known to get UTF-16 through. A command begins with a
/// letter of the basic alphabet, whose second byte is 0 only there.
[[nodiscard]] ExecuteText ReadExecuteText(std::string_view data);

} // namespace ls
