#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ls::fuzz {

/// What one run of a target is given: a text, and behind its last NUL the choices to be made on the way.
///
/// A file without a NUL is all text, and every choice is then 0: so a book, as it is, serves as an input.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size);

    [[nodiscard]] const std::string& Text() const { return m_text; }

    /// The next choice, 0 to `below` - 1.
    std::size_t Choose(std::size_t below);

    /// The text's lines, parted by LF.
    [[nodiscard]] std::vector<std::string> Lines() const;

private:
    std::string m_text;
    std::string m_choices;
    std::size_t m_next = 0;
};

/// What a target does with an input; each target defines it.
void TestInput(Input& input);

/// Ends the run as a finding when a property does not hold.
void Require(bool holds, const char* property);

/// The same for two texts that must be equal; both are shown.
void RequireEqual(std::string_view is, std::string_view shouldBe, const char* property);
void RequireEqual(const std::vector<std::string>& is, const std::vector<std::string>& shouldBe,
                  const char* property);

} // namespace ls::fuzz
