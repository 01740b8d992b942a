#include "PlayedDialogues.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace ls {
namespace {

using test::Dialogue;
using test::Modelled;
using test::Played;
using test::Texts;

// Makes books of one to three topics whose logic is good enough for dialogues. About one of `oddity` pieces
// is odd.
class BookMaker
{
public:
    BookMaker(std::mt19937& random, unsigned oddity) : m_random(random), m_oddity(oddity) {}

    std::string Make()
    {
        m_topics = 1 + Roll(3);
        for (std::size_t& home : m_homes) {
            home = 1 + Roll(m_topics);
        }
        std::string book = "LODESTAR BOOK V5.3\r\n";
        for (std::size_t topic = 1; topic <= m_topics; ++topic) {
            book +=
                "[Topic " + std::to_string(topic) + "]\r\n" + (Roll(2) == 0 ? "text\r\n" : "") + Block(topic);
        }
        return Odd() ? book.substr(0, book.size() - Roll(30)) : book;
    }

    std::size_t Roll(std::size_t n) { return m_random() % n; }
    [[nodiscard]] std::size_t TopicCount() const { return m_topics; }

private:
    bool Odd() { return Roll(m_oddity) == 0; }

    template <std::size_t N>
    std::string OneOf(const char* const (&texts)[N])
    {
        return texts[Roll(N)];
    }

    std::string Line(std::string text)
    {
        if (Odd()) {
            text.insert(Roll(text.size() + 1),
                        OneOf({" ", "  ", "*", "[", ",", "\t", ")", "(", "=", "\r\n"}));
        }
        return text + "\r\n";
    }

    std::string Block(std::size_t topic)
    {
        std::string block = Odd() ? "" : "<IXML>\r\n";
        block += (Roll(4) == 0 ? "\r\n" : "") +
                 (Odd() ? OneOf({"", "logic\r\n"}) : OneOf({"<LOGIC>\r\n", " <Logic> \r\n"}));
        block += Commands(topic);
        for (std::size_t i = 2 + Roll(7); i > 0; --i) {
            block += Line(Rule());
        }
        block += OneOf({"</LOGIC>\r\n", " </logic>\r\n", ""}) +
                 Line(OneOf({"<DEFINITIONS>", " about <definitions>"}));
        block += Definitions(topic);
        return block + (Odd() ? "" : "</DEFINITIONS>\r\n") + (Odd() ? "" : "</IXML>\r\n");
    }

    std::string Commands(std::size_t topic)
    {
        std::string lines = Roll(2) == 0 ? Line("TARGET GOAL") : "";
        for (std::size_t i = 0; i < Vars.size(); ++i) {
            if (m_homes[i] != topic && Roll(8) != 0) {
                lines += Line("define " + Vars[i] + "@topic " + std::to_string(m_homes[i]));
            }
        }
        return lines + (Roll(6) == 0 ? Line("ASSUME " + Fact(5)) : "") + (Odd() ? Line("ASSUME") : "") +
               (Odd() ? Line(OneOf({"* A(1) = B(2)", "NONSENSE", "DEFINE A@", "DEFINE A@Nowhere"})) : "");
    }

    std::string Fact(std::size_t var)
    {
        std::string value = Odd() ? OneOf({"", "1,2", ",1", "1(2)", "A(1)", "x y"}) : OneOf({"1", "2", "21"});
        return Vars[var] + "(" + value + (Odd() ? OneOf({"", "))", " ) "}) : ")");
    }

    // Conditions come after the conclusion in the list of variables, so circles are rare.
    std::string Rule()
    {
        const std::size_t left = Roll(5) < 3 ? Roll(2) : 2 + Roll(2);
        std::string rule = Fact(left) + OneOf({"=", " = "});
        for (std::size_t i = Odd() ? 0 : 1 + Roll(3); i > 0; --i) {
            const std::size_t from = Odd() ? 0 : std::max<std::size_t>(left + 1, 2);
            rule += Fact(from + Roll(Vars.size() - from)) + OneOf({"", " "});
        }
        return rule;
    }

    std::string Definitions(std::size_t topic)
    {
        std::string lines;
        for (std::size_t i = 0; i < Vars.size(); ++i) {
            if (m_homes[i] == topic && !Odd()) {
                lines += Entry("Q", Vars[i], i == 0 || i == 1 || Roll(5) == 0 ? "" : Vars[i] + " is what?");
            }
            if (Roll(4) == 0) {
                lines +=
                    Line(OneOf({"", "loose text", "* <Q ID=A>no</Q>", " *<AV ID=1>no</AV>", "<Q ID=open"}));
            }
        }
        for (const char* value : {"1", "2", "21"}) {
            lines += Entry("AV", value, std::string("Do ") + value) +
                     Entry("AV", std::string("GOAL(") + value + ")", std::string("Go ") + value);
        }
        return lines;
    }

    std::string Entry(const std::string& tag, const std::string& id, const std::string& text)
    {
        const std::string closing = Odd() ? OneOf({"", "</x>", "</q>", "</AV>"}) : "</" + tag + ">";
        return Line(OneOf({"", " ", ""}) + "<" + tag + " id=" + id + ">" + OneOf({"", "\r\n", " \r\n\r\n"}) +
                    text + OneOf({"", " ", "\r\n", "\r\n\r\n more\r\n"}) + closing);
    }

    inline static const Texts Vars{"GOAL", "AV", "D", "BA", "A", "B", "CB"};

    std::mt19937& m_random;
    unsigned m_oddity;
    std::size_t m_topics = 1;
    std::size_t m_homes[7] = {};
};

// Looked up by name, because a stray "[" may have added a topic.
int NumberOf(const Book& book, const std::string& name)
{
    const auto found = std::find(book.TopicNames.begin(), book.TopicNames.end(), name);
    EXPECT_NE(found, book.TopicNames.end());
    return static_cast<int>(found - book.TopicNames.begin()) + 1;
}

// The kind of a log line, for counting.
std::string KindOf(const std::string& line)
{
    const auto begins = [&line](std::string_view with) { return line.rfind(with, 0) == 0; };
    if (begins("question ")) {
        return line.find(" derived [") == std::string::npos ? "question" : "question derived";
    }
    if (begins("trace ")) {
        return line.find(" ", line.find("| ") + 2) == std::string::npos ? "trace" : "trace with sub-goals";
    }
    if (begins("advice ")) {
        return line.ends_with(": ") ? "advice without text" : "advice with text";
    }
    for (const char* kind :
         {"box critical|Can't", "box critical|Invalid command <<", "box critical|Invalid command in",
          "box critical|Logic", "box critical|Lodestar", "box exclamation|A LHS", "box exclamation|I can't",
          "box question|", "box |Please", "text Can't", "text Failure", "text I can't", "waiting"}) {
        if (begins(kind)) {
            return kind;
        }
    }
    return line;
}

// The least number of log lines of each kind that the random books must cause. If all dialogues failed to
// load, the test would compare little.
const std::map<std::string, int> Wanted{
    {"question", 1000},
    {"question derived", 200},
    {"trace", 1000},
    {"trace with sub-goals", 100},
    {"advice with text", 500},
    {"advice without text", 100},
    {"box critical|Can't", 1},
    {"box critical|Invalid command <<", 10},
    {"box critical|Invalid command in", 100},
    {"box critical|Logic", 100},
    {"box exclamation|A LHS", 50},
    {"box exclamation|I can't", 500},
    {"box question|", 500},
    {"box |Please", 20},
    {"text Can't", 100},
    {"text Failure", 100},
    {"text I can't", 500},
    {"waiting", 50},
    {"no advisor", 50},
    {"ends circular definition", 5},
    {"ends no next variable after an automatic one-value answer", 20},
    {"ends variable with no value in any rule", 5},
};

TEST(DialogueModel, randomBooks_playAsThePlainReadingDoes)
{
    std::mt19937 random(20250311);
    std::map<std::string, int> kinds;
    int skipped = 0;
    constexpr int rounds = 2500;
    for (int round = 0; round < rounds; ++round) {
        BookMaker maker(random, round % 2 == 0 ? 60 : 15);
        const std::string bytes = maker.Make();
        test::TestSeams seams;
        seams.files["/m.IDA"] = bytes;
        Book book;
        book.BookPath = "/m.IDA";
        ASSERT_TRUE(OpenBook(book, seams.Get()) && ScanBook(book, seams.Get()));
        std::vector<Dialogue> dialogues(1 + maker.Roll(3));
        for (Dialogue& dialogue : dialogues) {
            dialogue.topic =
                NumberOf(book, "[Topic " + std::to_string(1 + maker.Roll(maker.TopicCount())) + "]");
            dialogue.reuse = maker.Roll(4) != 0;
            dialogue.picks.resize(maker.Roll(12));
            for (std::size_t& pick : dialogue.picks) {
                pick = maker.Roll(25);
            }
        }
        bool gaveUp = false;
        const Texts expected = Modelled(book, bytes, dialogues, gaveUp);
        if (gaveUp) {
            ++skipped;
            continue;
        }
        ASSERT_EQ(Played(book, seams.Get(), dialogues), expected) << "round " << round << "\n" << bytes;
        for (const std::string& line : expected) {
            ++kinds[KindOf(line)];
        }
    }
    EXPECT_LT(skipped, rounds / 100);
    for (const auto& [kind, count] : Wanted) {
        EXPECT_GE(kinds[kind], count) << kind;
    }
}

} // namespace
} // namespace ls
