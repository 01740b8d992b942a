#include "CleanBooks.h"

#include <algorithm>
#include <random>
#include <vector>

namespace ls::test {

namespace {

struct Variable
{
    std::string name;
    std::vector<std::string> values;
    std::string home; ///< the title of the topic that asks about it
};

// The parts of one logic block.
struct Block
{
    std::string commands;
    std::string rules;
    std::vector<std::string> questions;
    std::vector<std::string> advice;
};

class Maker
{
public:
    explicit Maker(unsigned number) : m_random(number) {}

    std::string Make()
    {
        std::string book = Header();
        const int count = 2 + Up(5);
        for (int i = 1; i <= count; ++i) {
            m_titles.push_back("Topic " + std::to_string(i) +
                               (Chance(3)   ? " (new)"
                                : Chance(3) ? " caf\xE9"
                                            : ""));
        }
        for (const std::string& title : m_titles) {
            book += (Chance(10) ? "[" + title + "] " : "[" + title + "]") + std::string("\r\n") + Text() +
                    References();
            book += Chance(3) ? "" : Advisor(title);
        }
        return book + (Chance(5) ? "[EOF]\r\n" : "");
    }

private:
    int Up(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    bool Chance(int oneIn) { return Up(oneIn) == 0; }

    // All names and values have the same length, so that none is the end of another.
    std::string NewName()
    {
        return std::string(1, static_cast<char>('A' + Up(26))) + std::to_string(1000 + m_next++);
    }

    std::string Mixed(std::string text)
    {
        if (Chance(3)) {
            std::transform(text.begin(), text.end(), text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
        }
        return text;
    }

    std::string Header()
    {
        std::string line = "LODESTAR BOOK V5.3";
        line += Chance(2) ? " /AUTHOR=\"A/B\"" : "";
        line += Chance(2) ? " /URL=\"http://127.0.0.1/a\"" : "";
        line += Chance(3) ? " /POST=\"yes\"" : "";
        return line + "\r\n";
    }

    std::string Text()
    {
        static const std::vector<std::string> lines = {"",
                                                       "A line of text.",
                                                       "<H1>A heading</H1>",
                                                       "<H2>Another one</H2>",
                                                       "<H3>A small one</H3>",
                                                       "- an item with <B>bold</B> and <I>italic</I> text",
                                                       "1. first",
                                                       "12. twelfth",
                                                       "a) a letter",
                                                       "\tbehind a tab",
                                                       " - inside of a list",
                                                       "2 &LT; 3, 3 &GT; 2, Tom &AMP; Jerry",
                                                       "Tom & Jerry",
                                                       "2 < 3",
                                                       "caf\xE9, se\xF1or, 10 \x80",
                                                       "see [the notes] there",
                                                       " [indented]",
                                                       "<U>under</U> and <B>over",
                                                       "the end</B>",
                                                       "a long line that is broken in the pane and goes on "
                                                       "and on, since a paragraph is one line of the file"};
        std::string text;
        bool open = false;
        for (int i = Up(12); i > 0; --i) {
            std::string line = lines[static_cast<std::size_t>(Up(static_cast<int>(lines.size())))];
            if (line == "the end</B>" && !open) {
                line = "the end";
            }
            open = (open || line.ends_with("over")) && !line.ends_with("the end</B>") &&
                   !line.starts_with("<H1>") && !line.starts_with("<H2>") &&
                   line.find("</B>") == std::string::npos;
            text += line + (Chance(8) ? "  " : "") + "\r\n";
        }
        return text + (open ? "closed</B>\r\n" : "");
    }

    std::string References()
    {
        std::string text;
        for (int i = Up(4); i > 0; --i) {
            const std::string& title =
                m_titles[static_cast<std::size_t>(Up(static_cast<int>(m_titles.size())))];
            text += "<XREF TOPIC=" + (Chance(2) ? "\"" + title + "\"" : title) + ">";
            text += Chance(2) ? "a note" : Chance(2) ? "\r\na note of\r\n\r\n<B>lines\r\nin [brackets" : "";
            text += "</XREF>\r\n";
            text += Chance(4) ? "\r\n" : "";
        }
        return text;
    }

    Variable NewVariable(const std::string& home)
    {
        Variable variable{NewName(), {}, home};
        for (int i = 2 + Up(2); i > 0; --i) {
            variable.values.push_back(NewName());
        }
        return variable;
    }

    std::string Fact(const std::string& var, const std::string& value)
    {
        return Mixed(var) + (Chance(5) ? " ( " + value + " )" : "(" + Mixed(value) + ")");
    }

    std::string Rule(const std::string& conclusion, const std::string& conditions)
    {
        return conclusion + (Chance(2) ? " = " : "=") + conditions + "\r\n" +
               (Chance(9) ? "\r\n* a note = here\r\n" : "");
    }

    static std::string Entry(const std::string& tag, const std::string& id, const std::string& text)
    {
        return "<" + tag + " ID=" + id + ">" + text + "</" + tag + ">\r\n";
    }

    std::string EntryText()
    {
        return Chance(2) ? "text" : "\r\nfirst line\r\n\r\n- second, [in brackets]\r\n* with a star\r\n";
    }

    // Adds rules, so that every list of answers leads to a value of `goal`.
    void AddTree(Block& block, const Variable& goal, const std::string& home, const std::string& conditions,
                 int depth, std::size_t& given, const Variable* root)
    {
        const Variable variable = root != nullptr ? *root : NewVariable(home);
        if (root == nullptr) {
            Ask(block, variable, depth);
        }
        for (const std::string& value : variable.values) {
            const std::string fact = Fact(variable.name, value);
            if (depth > 0 && Chance(2)) {
                AddTree(block, goal, home, conditions + fact + (Chance(4) ? "" : " "), depth - 1, given,
                        nullptr);
            } else {
                const std::string& concluded = goal.values[given++ % goal.values.size()];
                block.rules += Rule(Fact(goal.name, concluded), conditions + fact);
            }
        }
    }

    // Adds the question of a variable. Some variables also get rules that conclude them.
    void Ask(Block& block, const Variable& variable, int depth)
    {
        const bool derived = depth > 0 && Chance(4);
        block.questions.push_back(
            Entry(Chance(4) ? "Q" : "Q", Mixed(variable.name), derived && Chance(2) ? "" : EntryText()));
        if (Chance(5)) {
            block.questions.push_back(Entry("AV", variable.name + "(" + variable.values.front() + ")", ""));
        }
        if (derived) {
            m_pending.push_back(variable);
        }
    }

    void Derive(Block& block, const Variable& variable)
    {
        std::size_t given = 0;
        std::string rules;
        std::swap(rules, block.rules);
        AddTree(block, variable, variable.home, "", 1, given, nullptr);
        const bool all = given >= variable.values.size();
        std::swap(rules, block.rules);
        block.rules += rules;
        for (std::size_t i = given; !all && i < variable.values.size(); ++i) {
            const Variable more = NewVariable(variable.home); // for a value that no rule concludes yet
            Ask(block, more, 0);
            for (const std::string& value : more.values) {
                block.rules += Rule(Fact(variable.name, variable.values[i]), Fact(more.name, value));
            }
        }
    }

    std::string Advisor(const std::string& title)
    {
        Block block;
        const bool target = !Chance(4);
        Variable goal{target ? NewName() : "AV", {}, title};
        for (int i = 2 + Up(4); i > 0; --i) {
            goal.values.push_back(NewName());
        }
        Variable root = NewVariable(title);
        if (target && !m_shared.empty() && Chance(2)) {
            root = m_shared[static_cast<std::size_t>(Up(static_cast<int>(m_shared.size())))];
            block.commands += Mixed("DEFINE ") + Mixed(root.name) + "@" + (Chance(3) ? " " : "") +
                              Mixed(root.home) + "\r\n";
        } else {
            Ask(block, root, 2);
        }
        std::size_t given = 0;
        if (Chance(3)) {
            AddAssumed(block, goal, root, given);
        } else {
            AddTree(block, goal, title, "", 2, given, &root);
        }
        goal.values.resize(std::min(given, goal.values.size()));
        while (!m_pending.empty()) {
            const Variable next = m_pending.back();
            m_pending.pop_back();
            Derive(block, next);
        }
        if (root.home == title && target) {
            m_shared.push_back(root);
        }
        return Write(block, goal, target);
    }

    // Adds trees whose first condition comes from ASSUME.
    void AddAssumed(Block& block, const Variable& goal, const Variable& root, std::size_t& given)
    {
        for (const std::string& value : root.values) {
            block.rules += "ASSUME " + root.name + "(" + value + ")\r\n";
            AddTree(block, goal, goal.home, "", 1, given, nullptr);
        }
        block.rules += "ASSUME\r\n";
    }

    std::string Write(Block& block, const Variable& goal, bool target)
    {
        std::string text = std::string(Chance(5) ? " <ixml>" : "<IXML>") + "\r\n<LOGIC>\r\n";
        text += Chance(2) ? "* rules\r\n\r\n" : "";
        text += (target ? Mixed("TARGET ") + Mixed(goal.name) + "\r\n" : "") + block.commands + block.rules;
        text += "</LOGIC>\r\n<DEFINITIONS>\r\n";
        for (const std::string& value : goal.values) {
            block.advice.push_back(Entry("AV", target ? goal.name + "(" + value + ")" : value, EntryText()));
        }
        if (target) {
            block.questions.push_back(Entry("Q", goal.name, ""));
        }
        if (target && Chance(2)) {
            std::swap(block.advice, block.questions);
        }
        for (const auto* list : {&block.questions, &block.advice}) {
            for (const std::string& entry : *list) {
                text += entry + (Chance(2) ? "\r\n" : Chance(5) ? "* a comment\r\n" : "");
            }
        }
        return text + "</DEFINITIONS>\r\n</IXML>\r\n" + (Chance(4) ? "\r\n" : "");
    }

    std::mt19937 m_random;
    int m_next = 0;
    std::vector<std::string> m_titles;
    std::vector<Variable> m_shared;  ///< variables that other topics may DEFINE
    std::vector<Variable> m_pending; ///< variables that still need rules to conclude them
};

} // namespace

std::string MakeCleanBook(unsigned number)
{
    return Maker(number).Make();
}

} // namespace ls::test
