#include "LogicGenerator.h"

#include "base/Text.h"

#include <array>
#include <utility>

namespace ls::test {

namespace {

constexpr std::array<const char*, 12> Names = {"AGE",    "risk",  "Smoker", "AV",  "b\xE9t\xE9", "N 1",
                                               "Colour", "MONEY", "x",      "Day", "STAGE",      "Pet"};
constexpr std::array<const char*, 8> Choices = {"LOW", "high", "> 5", "A B", "\xFC", "1", "No", "SOME(1)"};

} // namespace

int LogicGenerator::Number(int below)
{
    return static_cast<int>(m_random() % static_cast<unsigned>(below));
}

bool LogicGenerator::Odd(int percent)
{
    return Number(100) < percent && !m_tidy;
}

std::string LogicGenerator::Word()
{
    m_block.words.push_back("w" + std::to_string(m_block.words.size()) + "w");
    return m_block.words.back();
}

std::string LogicGenerator::Name()
{
    std::string name = Names[static_cast<std::size_t>(Number(Names.size()))];
    if (Number(4) == 0) {
        name = UpperCase(name);
    }
    return Odd(3) ? " " + name : name;
}

std::string LogicGenerator::AnyCase(std::string text)
{
    if (Number(4) != 0) {
        return text;
    }
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c + ('a' - 'A'));
        }
    }
    return text;
}

std::string LogicGenerator::Blanks()
{
    return Number(4) == 0 ? std::string(static_cast<std::size_t>(Number(3)), ' ') : std::string();
}

void LogicGenerator::Line(const std::string& text)
{
    m_block.text += Blanks() + text + Blanks() + (Odd(2) ? "\r" : "\r\n");
}

GeneratedBlock LogicGenerator::Make()
{
    m_block = {};
    m_tidy = Number(2) == 0;
    m_block.text = "<IXML>\r\n";
    if (Odd(10)) {
        Line(Number(2) == 0 ? "" : Word());
    }
    if (!Odd(2)) {
        Line(AnyCase("<LOGIC>"));
    }
    Logic();
    Definitions();
    return std::exchange(m_block, {});
}

void LogicGenerator::Logic()
{
    for (int i = Number(6); i >= 0; --i) {
        LogicLine();
    }
    if (!Odd(10)) {
        Line(AnyCase("</LOGIC>"));
    }
    if (Odd(10)) {
        LogicLine();
    }
    if (Number(5) == 0) {
        Line("");
    }
}

void LogicGenerator::LogicLine()
{
    switch (Number(m_tidy ? 7 : 11)) {
    case 0:
        Line("* " + Word());
        break;
    case 1:
        Line("");
        break;
    case 2:
        Line(AnyCase("TARGET ") + Name());
        break;
    case 3:
        Line(AnyCase("DEFINE ") + Name() + (Number(2) == 0 ? "@Other" : "@ topic "));
        break;
    case 4:
        Line("ASSUME " + Name() + "(" + Word() + ")");
        break;
    case 7:
        Line(Word()); // no command, so the load fails
        break;
    case 8:
        Line(Number(4) == 0 ? "[" + Word() : "\t" + Word());
        break;
    case 9:
        Line(Number(4) == 0 ? "<Q ID=" + Name() + ">" : "TARGET\t" + Word());
        break;
    default:
        Line(Name() + Blanks() + "(" + Word() + ") =" + Blanks() + Name() + "(" + Word() + ")" + Blanks() +
             Name() + "(" + Word() + ")");
    }
}

void LogicGenerator::Definitions()
{
    if (!Odd(3)) {
        Line((Odd(5) ? Word() : "") + AnyCase("<DEFINITIONS>") + (Odd(5) ? Word() : ""));
    }
    for (int i = Number(12); i > 0; --i) {
        if (Odd(15)) {
            Stray();
        } else {
            Entry();
        }
    }
    if (!Odd(10)) {
        Line((Odd(5) ? Word() : "") + AnyCase("</DEFINITIONS>") + (Odd(5) ? Word() : ""));
    }
    if (Odd(5)) {
        Line(Word());
    }
    if (!Odd(10)) {
        Line(AnyCase("</IXML>"));
    }
    if (Odd(3)) {
        Line(Word());
    }
}

void LogicGenerator::Entry()
{
    std::string line;
    if (Odd(3)) {
        line = Number(2) == 0 ? "\t" : Word() + " ";
    }
    const bool question = Number(5) < 2;
    if (question) {
        line += AnyCase("<Q ID=") + Name() + ">" + EntryText("</Q>");
    } else if (Number(3) != 0) {
        const std::string choice = Choices[static_cast<std::size_t>(Number(Choices.size()))];
        line += AnyCase("<AV ID=") + Name() + "(" + choice + ")" + ">" + EntryText("</AV>");
    } else {
        const char* const identifiers[] = {"GO", "stop", "X(1", "()", "A()", "(a)", "WAIT 1", "A( b )"};
        line += AnyCase("<AV ID=") + identifiers[Number(8)] + ">" + EntryText("</AV>");
    }
    if (Odd(3)) {
        line += Number(2) == 0 ? Word() : " <AV ID=" + Name() + "(SAME)>" + Word() + "</AV>";
    }
    Line(line);
    if (Number(2) == 0) {
        Line("");
    }
}

// The text between the tags, with the closing tag.
std::string LogicGenerator::EntryText(const char* closing)
{
    std::string text;
    for (int lines = Number(4); lines > 0; --lines) {
        text += Blanks() + Word();
        if (Number(6) == 0) {
            text += std::string(static_cast<std::size_t>(50 + Number(14)), 'x');
        }
        if (Number(3) == 0) {
            text += Blanks() + "\r\n" + Blanks();
            text += Number(4) == 0 ? "\r\n" : "";
            text += Odd(5) ? "* " : "";
            text += Odd(2) ? " [" : "";
        }
    }
    if (Odd(1)) {
        return text + "</q>";
    }
    return Odd(2) ? text : text + closing;
}

void LogicGenerator::Stray()
{
    switch (Number(7)) {
    case 0:
        Line(Word());
        break;
    case 1:
        Line("<Q ID=" + Word());
        break;
    case 2:
        Line("  [" + Word());
        break;
    case 3:
        Line(Number(3) == 0 ? "[" : "* <AV ID=GO>" + Word() + "</AV>");
        break;
    case 4:
        Line("<DEFINITIONS>");
        break;
    default:
        Line("* " + Word());
    }
}

} // namespace ls::test
