#include "cli/Arguments.h"

#include "base/CodePage.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace ls {

namespace {

std::string QuotedArgument(std::string_view argument)
{
    return FromPath(argument).insert(0, 1, '"').append(1, '"');
}

// The words of "BOOK [TITLE]" or "W H".
std::vector<std::string> Words(std::string_view text)
{
    std::vector<std::string> words;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.emplace_back(text.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

std::optional<int> WholeNumber(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

std::string CheckRange(const OptionSpec& option, const std::string& value)
{
    if (option.least == 0 && option.most == 0) {
        return {};
    }
    const std::optional<int> number = WholeNumber(value);
    if (number && *number >= option.least && *number <= option.most) {
        return {};
    }
    return std::string(option.name) + " needs a whole number from " + std::to_string(option.least) + " to " +
           std::to_string(option.most) + ", not " + QuotedArgument(value);
}

std::string Needs(std::string_view option, const std::vector<std::string>& names)
{
    std::string text = std::string(option) + " needs";
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += (i == 0 ? " " : " and ") + names[i];
    }
    return text;
}

} // namespace

std::string Arguments::TakeOption(const CommandSpec& command, const std::vector<std::string>& arguments,
                                  std::size_t& at)
{
    const std::string& argument = arguments[at];
    const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
    const std::string name = argument.substr(0, equals);
    const auto option = std::find_if(command.options.begin(), command.options.end(),
                                     [&name](const OptionSpec& o) { return o.name == name; });
    if (option == command.options.end()) {
        return "unknown option " + QuotedArgument(name);
    }
    if (Has(name)) {
        return name + " is given twice";
    }
    const std::vector<std::string> names = Words(option->values);
    std::vector<std::string> values;
    if (equals != std::string::npos) {
        if (names.empty()) {
            return name + " takes no value";
        }
        values.push_back(argument.substr(equals + 1));
    }
    while (values.size() < names.size() && at + 1 < arguments.size()) {
        values.push_back(arguments[++at]);
    }
    if (values.size() < names.size()) {
        return Needs(name, names);
    }
    for (const std::string& value : values) {
        if (std::string wrong = CheckRange(*option, value); !wrong.empty()) {
            return wrong;
        }
    }
    m_options[name] = std::move(values);
    return {};
}

std::string Arguments::Read(const CommandSpec& command, const std::vector<std::string>& arguments)
{
    bool optionsEnded = false;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.size() > 1 && argument.front() == '-') {
            if (std::string wrong = TakeOption(command, arguments, at); !wrong.empty()) {
                return wrong;
            }
        } else if (m_operands.size() == command.mostOperands) {
            return "unexpected argument " + QuotedArgument(argument);
        } else {
            m_operands.push_back(argument);
        }
    }
    if (m_operands.size() < command.leastOperands) {
        return Words(command.operands)[m_operands.size()] + " is missing";
    }
    return {};
}

std::vector<std::string> Arguments::Values(std::string_view option) const
{
    const auto found = m_options.find(option);
    return found == m_options.end() ? std::vector<std::string>() : found->second;
}

int Arguments::Number(std::string_view option, int otherwise) const
{
    const std::vector<std::string> values = Values(option);
    return values.empty() ? otherwise : WholeNumber(values.front()).value_or(otherwise);
}

} // namespace ls
