#pragma once

#include "cli/CommandSpec.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// The arguments of one command, checked against its `CommandSpec`.
class Arguments
{
public:
    /// Reads operands and options in any order. `--name value` and `--name=value` mean the same; "--" ends
    /// the options. Returns the error as one sentence without a full stop; empty on success.
    std::string Read(const CommandSpec& command, const std::vector<std::string>& arguments);

    [[nodiscard]] const std::vector<std::string>& Operands() const { return m_operands; }
    [[nodiscard]] bool Has(std::string_view option) const { return m_options.count(option) != 0; }

    /// The values of an option; empty when it was not given.
    [[nodiscard]] std::vector<std::string> Values(std::string_view option) const;

    /// The value of an option with a range; `otherwise` when it was not given.
    [[nodiscard]] int Number(std::string_view option, int otherwise) const;

private:
    std::string TakeOption(const CommandSpec& command, const std::vector<std::string>& arguments,
                           std::size_t& at);

    std::vector<std::string> m_operands;
    std::map<std::string, std::vector<std::string>, std::less<>> m_options;
};

} // namespace ls
