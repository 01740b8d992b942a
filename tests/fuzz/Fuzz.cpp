#include "Fuzz.h"

#include <cstdio>
#include <cstdlib>

namespace ls::fuzz {

namespace {

// Bytes as in a C literal, so that blanks and line ends are visible.
std::string Shown(std::string_view text)
{
    std::string shown;
    for (const char c : text) {
        if (c >= ' ' && c <= '~' && c != '\\') {
            shown += c;
        } else {
            char escaped[5];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", unsigned{static_cast<unsigned char>(c)});
            shown += escaped;
        }
    }
    return shown;
}

[[noreturn]] void Fail(const char* property)
{
    std::fprintf(stderr, "PROPERTY DOES NOT HOLD: %s\n", property);
    std::abort();
}

} // namespace

Input::Input(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t nul = bytes.rfind('\0');
    m_text = bytes.substr(0, nul);
    m_choices = nul == std::string_view::npos ? std::string_view() : bytes.substr(nul + 1);
}

std::size_t Input::Choose(std::size_t below)
{
    if (m_next >= m_choices.size()) {
        return 0;
    }
    return static_cast<unsigned char>(m_choices[m_next++]) % below;
}

std::vector<std::string> Input::Lines() const
{
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (std::size_t end = m_text.find('\n'); end != std::string::npos; end = m_text.find('\n', from)) {
        lines.push_back(m_text.substr(from, end - from));
        from = end + 1;
    }
    lines.push_back(m_text.substr(from));
    return lines;
}

void Require(bool holds, const char* property)
{
    if (!holds) {
        Fail(property);
    }
}

void RequireEqual(std::string_view is, std::string_view shouldBe, const char* property)
{
    if (is != shouldBe) {
        std::fprintf(stderr, "is        %s\nshould be %s\n", Shown(is).c_str(), Shown(shouldBe).c_str());
        Fail(property);
    }
}

void RequireEqual(const std::vector<std::string>& is, const std::vector<std::string>& shouldBe,
                  const char* property)
{
    if (is == shouldBe) {
        return;
    }
    for (const std::string& line : is) {
        std::fprintf(stderr, "is        %s\n", Shown(line).c_str());
    }
    for (const std::string& line : shouldBe) {
        std::fprintf(stderr, "should be %s\n", Shown(line).c_str());
    }
    Fail(property);
}

} // namespace ls::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ls::fuzz::Input input(data, size);
    ls::fuzz::TestInput(input);
    return 0;
}
