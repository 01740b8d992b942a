#include "book/ParameterList.h"

#include "base/Text.h"

namespace ls {

namespace {

constexpr auto None = std::string_view::npos;

// The position of the slash that ends the value after `equals`. If the next slash is between two double
// quotes, the first slash after the closing quote ends the value.
std::size_t ValueEnd(std::string_view rest, std::size_t equals)
{
    const std::size_t end = rest.find('/', equals);
    // The opening quote must come before that slash. Searching further would scan a line of slashes again for
    // each slash, which takes quadratic time.
    const std::size_t open = end == None ? None : rest.substr(0, end).find('"', equals);
    if (open == None) {
        return end;
    }
    const std::size_t close = rest.find('"', open + 1);
    if (close == None || end > close) {
        return end;
    }
    return rest.find('/', close);
}

} // namespace

bool WalkParameters(std::string_view text,
                    const std::function<bool(const std::string& key, const std::string& value)>& store)
{
    bool good = true;
    std::string_view rest = text;
    for (;;) {
        const std::size_t slash = rest.find('/');
        if (slash == None) {
            return good;
        }
        const std::size_t equals = rest.find('=');
        if (equals == None || equals < slash) {
            return false;
        }
        const std::string key = UpperCase(rest.substr(slash + 1, equals - slash - 1));
        const std::size_t end = ValueEnd(rest, equals);
        const std::string value(TrimRight(rest.substr(equals + 1, end == None ? None : end - equals - 1)));
        good = store(key, value) && good;
        rest = end == None ? std::string_view() : rest.substr(end);
    }
}

std::string Unquote(std::string value)
{
    if (value.size() > 1) {
        if (value.front() == '"') {
            value.erase(0, 1);
        }
        if (!value.empty() && value.back() == '"') {
            value.pop_back();
        }
    }
    return value;
}

} // namespace ls
