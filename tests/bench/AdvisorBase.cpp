#include "bench/AdvisorBase.h"

#include "bench/Measure.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <random>

namespace ls::bench {

namespace {

constexpr int Variables = 40;
constexpr unsigned Values = 4;
constexpr std::size_t Conditions = 6;
constexpr const char* ValueNames[Values] = {"LOW", "FAIR", "GOOD", "HIGH"};

std::string Numbered(const char* format, int number)
{
    char text[16];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

class BaseMaker
{
public:
    explicit BaseMaker(unsigned seed) : m_random(seed)
    {
        for (int i = 1; i <= Variables; ++i) {
            m_base.reader.push_back({Numbered("V%02d", i), AnyValue()});
        }
    }

    AdvisorBase Make(int ruleCount)
    {
        const int agreeing = ruleCount / 2;
        for (int i = 1; i <= ruleCount; ++i) {
            std::vector<Setting> conditions = AnyVariables();
            while (i != agreeing && !Disagree(conditions)) {
            }
            m_base.rules.push_back({Numbered("R%05d", i), std::move(conditions)});
        }
        m_base.advice = m_base.rules[static_cast<std::size_t>(agreeing) - 1].advice;
        return std::move(m_base);
    }

private:
    std::string AnyValue() { return ValueNames[m_random() % Values]; }

    // The reader's settings of any six variables, in any order.
    std::vector<Setting> AnyVariables()
    {
        std::vector<Setting> chosen = m_base.reader;
        for (std::size_t i = 0; i < Conditions; ++i) {
            std::swap(chosen[i], chosen[i + m_random() % (chosen.size() - i)]);
        }
        chosen.resize(Conditions);
        return chosen;
    }

    // Draws the values. False if by chance all of them are the reader's answers.
    bool Disagree(std::vector<Setting>& conditions)
    {
        bool disagrees = false;
        for (Setting& condition : conditions) {
            condition.value = AnyValue();
            disagrees = disagrees || condition.value != m_base.AnswerTo(condition.var);
        }
        return disagrees;
    }

    std::mt19937 m_random;
    AdvisorBase m_base;
};

// The advisor does not ask about a variable with one value left, so a dialogue could end on another advice
// than that of the rule that agrees with the reader. With this seed that happens at none of the measured
// sizes.
constexpr unsigned Seed = 2;

} // namespace

const std::string& AdvisorBase::AnswerTo(const std::string& var) const
{
    const auto found =
        std::find_if(reader.begin(), reader.end(), [&var](const Setting& known) { return known.var == var; });
    Require(found != reader.end(), "the reader has an answer");
    return found->value;
}

AdvisorBase MakeAdvisorBase(int ruleCount)
{
    return BaseMaker(Seed).Make(ruleCount);
}

std::string WriteAdvisorBook(const AdvisorBase& base, const std::string& folder)
{
    const std::string path = folder + "/advisor-" + std::to_string(base.rules.size()) + ".IDA";
    std::ofstream file(path, std::ios::binary);
    file << "LODESTAR BOOK V5.3 /AUTHOR=\"Nobody\"\r\n[Advice]\r\nAsk the advisor.\r\n<IXML>\r\n<LOGIC>\r\n"
         << "TARGET ADVICE\r\nDEFINE ADVICE@Advice\r\n"; // so the advice's text is searched in this topic
    for (const BaseRule& rule : base.rules) {
        file << "ADVICE(" << rule.advice << ") =";
        for (const Setting& condition : rule.conditions) {
            file << ' ' << condition.var << '(' << condition.value << ')';
        }
        file << "\r\n";
    }
    file << "</LOGIC>\r\n<DEFINITIONS>\r\n";
    for (const Setting& answer : base.reader) {
        file << "<Q ID=" << answer.var << ">What is your " << answer.var << "?</Q>\r\n";
    }
    file << "<AV ID=ADVICE(" << base.advice << ")>Do this.</AV>\r\n</DEFINITIONS>\r\n</IXML>\r\n";
    file.close();
    Require(file.good(), "the disk takes the advisor's book");
    return path;
}

} // namespace ls::bench
