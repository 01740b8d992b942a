#include "base/Text.h"
#include "check/CheckedBlockReader.h"

#include <algorithm>

namespace ls {

namespace {

constexpr auto None = std::string_view::npos;

std::string Squeezed(std::string_view text)
{
    std::string squeezed(text);
    squeezed.erase(std::remove(squeezed.begin(), squeezed.end(), ' '), squeezed.end());
    return squeezed;
}

// Removes everything up to the last separator. It is not part of the name.
std::string_view WithoutSeparators(std::string_view name, RuleFault& fault, std::string& stray)
{
    const std::size_t separator = name.find_last_of(",;\t");
    if (separator == None) {
        return name;
    }
    fault = RuleFault::Stray;
    stray = Trim(name.substr(0, separator + 1));
    return name.substr(separator + 1);
}

BlockTerm MakeTerm(std::string_view name, std::string_view value)
{
    name = Trim(name);
    BlockTerm term{Squeezed(name), Squeezed(value), {}};
    if (name.find_first_of(" &+|:") != None) {
        term.words = name;
    }
    return term;
}

} // namespace

void ReadTerms(std::string_view source, std::vector<BlockTerm>& terms, RuleFault& fault, std::string& stray)
{
    std::size_t from = 0;
    for (;;) {
        const std::size_t open = source.find('(', from);
        std::string_view name = source.substr(from, open == None ? None : open - from);
        if (const std::size_t closing = name.rfind(')'); closing != None) {
            fault = RuleFault::Brackets;
            name = name.substr(closing + 1);
        }
        if (open == None) {
            if (!Trim(name).empty() && fault == RuleFault::None) {
                fault = RuleFault::Stray;
                stray = Trim(name);
            }
            return;
        }
        name = WithoutSeparators(name, fault, stray);
        std::size_t close = source.find_first_of("()", open + 1);
        if (Trim(name).empty() || close == None || source[close] == '(') {
            fault = RuleFault::Brackets;
            close = source.find(')', open + 1);
        }
        terms.push_back(MakeTerm(name, source.substr(open + 1, close == None ? None : close - open - 1)));
        if (close == None) {
            return;
        }
        from = close + 1;
    }
}

} // namespace ls
