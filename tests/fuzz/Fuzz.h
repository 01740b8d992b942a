#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ls::fuzz {

/// The input of one run: a text, and after its last NUL the choices for the run.
///
/// In a file without a NUL everything is text and every choice is 0. So any book can be an input.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size);

    [[nodiscard]] const std::string& Text() const { return m_text; }

    /// The next choice, 0 to `below` - 1.
    std::size_t Choose(std::size_t below);

    /// The text's lines, separated by LF.
    [[nodiscard]] std::vector<std::string> Lines() const;

private:
    std::string m_text;
    std::string m_choices;
    std::size_t m_next = 0;
};

/// What a target does with an input. Each target defines it.
void TestInput(Input& input);

/// Ends the run as a finding if a property does not hold.
void Require(bool holds, const char* property);

/// Like `Require`, for two texts that must be equal; prints both.
void RequireEqual(std::string_view is, std::string_view shouldBe, const char* property);
void RequireEqual(const std::vector<std::string>& is, const std::vector<std::string>& shouldBe,
                  const char* property);

} // namespace ls::fuzz
