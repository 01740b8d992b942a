// Parses a logic block and builds it again. It must mean the same, or give the author a message.

#include "authoring/LogicBlock.h"
#include "LogicMeaning.h"
#include "World.h"
#include "authoring/LogicFaults.h"
#include "base/Text.h"

#include <algorithm>
#include <cctype>

namespace ls::fuzz {

namespace {

// The tables without the parts that only describe the block they come from.
LogicBlock Bare(LogicBlock block)
{
    block.lost.clear();
    for (LogicVariable& variable : block.variables) {
        variable.inBlock = true;
    }
    return block;
}

// The words of a text, in capitals, sorted, each once.
std::vector<std::string> WordsOf(const std::string& text)
{
    std::vector<std::string> words(1);
    for (const char c : UpperCase(text)) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
    return words;
}

void RequireEveryWord(const std::string& text, const std::string& built)
{
    const std::vector<std::string> before = WordsOf(text);
    const std::vector<std::string> after = WordsOf(built);
    std::vector<std::string> missing;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(),
                        std::back_inserter(missing));
    missing.erase(std::remove(missing.begin(), missing.end(), ""), missing.end());
    RequireEqual(missing, {}, "no word vanishes unnamed");
}

// Whether an entry holds another entry or hides questions. Such an entry is stored as written, and the author
// is asked about it each time.
bool KeptAndAskedAbout(const std::vector<LostPart>& lost)
{
    return std::any_of(lost.begin(), lost.end(), [](const LostPart& part) {
        return part.what.find("holds another entry") != std::string::npos ||
               part.what.find("which hides the questions") != std::string::npos;
    });
}

void RequireSameMeaning(const std::string& text, const LogicBlock& read, const std::string& built)
{
    const std::vector<std::string> tags = test::TagsOf(read);
    const test::Meaning before = test::MeaningOf(text, tags);
    const test::Meaning after = test::WithoutPlaceholders(test::MeaningOf(built, tags), read);
    Require(before.loads == after.loads, "a block loads as it did");
    RequireEqual(before.rules, after.rules, "a block has the rules that it had");
    RequireEqual(before.targets, after.targets, "a block has the goals that it had");
    RequireEqual(before.variables, after.variables, "a block asks for the variables that it asked for");
    for (const auto& [tag, shown] : before.texts) {
        const auto found = after.texts.find(tag);
        RequireEqual(found == after.texts.end() ? "" : found->second, shown, "an entry shows what it showed");
    }
}

} // namespace

void TestInput(Input& input)
{
    const std::string text = "<IXML>\r\n" + input.Text();
    const LogicBlock read = ParseLogicBlock(text);
    for (const LostPart& lost : read.lost) {
        RequireUtf8(lost.what);
        Require(lost.line >= 1, "a part that is lost has a line");
    }
    World world(input);
    const std::optional<std::string> built = BuildLogicBlock(read, world.Get());
    Require(built.has_value() != read.logicText.empty(), "only a block without logic is refused");
    if (!built) {
        return;
    }
    const std::vector<LogicFault> faults = FindLogicFaults(read);
    RequireUtf8(LogicFaultsQuestion(faults) + LostPartsQuestion(read.lost));
    const LogicBlock again = ParseLogicBlock(*built);
    if (!faults.empty()) {
        return;
    }
    RequireEqual(test::Describe(Bare(again)), test::Describe(Bare(read)),
                 "a built block has the same tables");
    if (!KeptAndAskedAbout(read.lost)) {
        LogicBlock lost;
        lost.lost = again.lost;
        RequireEqual(test::Describe(lost), test::Describe({}),
                     "a built block holds nothing that would be lost");
    }
    if (read.lost.empty()) {
        RequireEveryWord(text, *built);
        RequireSameMeaning(text, read, *built);
    }
}

} // namespace ls::fuzz
