#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace ls::test {

/// A random logic block, with mistakes and unusual forms that authors write.
struct GeneratedBlock
{
    std::string text;
    std::vector<std::string> words; ///< each is in the block once; losing one must give a message
};

class LogicGenerator
{
public:
    explicit LogicGenerator(std::uint32_t seed) : m_random(seed) {}

    GeneratedBlock Make();

private:
    [[nodiscard]] int Number(int below);
    [[nodiscard]] bool Odd(int percent); ///< true sometimes, but never in a tidy block
    [[nodiscard]] std::string Word();
    [[nodiscard]] std::string Name();
    [[nodiscard]] std::string AnyCase(std::string text);
    [[nodiscard]] std::string Blanks();
    [[nodiscard]] std::string EntryText(const char* closing);
    void Line(const std::string& text);
    void Logic();
    void LogicLine();
    void Definitions();
    void Entry();
    void Stray();

    std::mt19937 m_random;
    GeneratedBlock m_block;
    bool m_tidy = false;
};

} // namespace ls::test
