#pragma once

#include <functional>
#include <string>

namespace ls::test {

/// As many topics, references, lines or rules as can be counted.
inline constexpr int Limit = 32767;
inline constexpr const char* BookHeader = "LODESTAR BOOK V5.3\r\n";

/// A book: the header, `before`, the results of `piece` for 1 to `count`, and `behind`.
inline std::string BookOfMany(int count, const std::string& before,
                              const std::function<std::string(int)>& piece, const std::string& behind = {})
{
    std::string bytes = BookHeader + before;
    for (int i = 1; i <= count; ++i) {
        bytes += piece(i);
    }
    return bytes + behind;
}

inline std::string NthTopic(int number)
{
    return "[T" + std::to_string(number) + "]\r\nbody " + std::to_string(number) + "\r\n";
}

inline std::string NthReference(int number)
{
    return "<XREF TOPIC=B>note " + std::to_string(number) + "</XREF>\r\n";
}

/// A rule of an advisor whose last choice leads to "The last."
inline std::string NthRule(int number)
{
    return "G(" + std::to_string(number) + ")=X(" + std::to_string(number) + ")\r\n";
}

inline constexpr const char* RulesStart = "[A]\r\n<IXML>\r\n<LOGIC>\r\nTARGET G\r\n";
inline constexpr const char* RulesEnd = "</LOGIC>\r\n<DEFINITIONS>\r\n<Q ID=X>Which?</Q>\r\n<Q ID=G></Q>\r\n"
                                        "<AV ID=G(32767)>The last.</AV>\r\n</DEFINITIONS>\r\n</IXML>\r\n";

} // namespace ls::test
