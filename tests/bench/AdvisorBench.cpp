#include "bench/AdvisorBase.h"
#include "bench/AdvisorPeers.h"
#include "bench/AdvisorWorld.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"

#include <array>
#include <iterator>

namespace ls::bench {

namespace {

constexpr double AtLeast = 20;
constexpr double GrowthLimit = 15; // for a question with ten times the rules; quadratic would be 100

struct Series
{
    std::vector<double> load;
    std::vector<double> question;
};

struct PeerSeries
{
    const char* name;
    Peer run;
    double questionAtLeast; // 0: no aim
    Series times{};
};

void PrintPeer(const PeerSeries& peer, const std::string& rules, const Medians& own, double loadAtLeast)
{
    if (peer.times.load.empty()) {
        PrintRow(rules + peer.name, "not installed");
        return;
    }
    const double load = MedianOf(peer.times.load);
    const double question = MedianOf(peer.times.question);
    PrintFaster(rules + "load, " + peer.name, Milliseconds(load), load / own.first, loadAtLeast);
    PrintFaster(rules + "a question, " + peer.name, Milliseconds(question), question / own.second,
                peer.questionAtLeast);
}

// Runs all engines in turns, so that other load slows all of them. A question's time is the time of the whole
// dialogue divided by the number of questions. Returns this program's time for a question.
double BenchBase(int ruleCount, int rounds, const std::string& folder)
{
    const AdvisorBase base = MakeAdvisorBase(ruleCount);
    AdvisorWorld world(base, folder);
    Series own;
    std::array<PeerSeries, 3> peers{
        {{"CLIPS, rules", ClipsRules, 0}, {"CLIPS, facts", ClipsFacts, AtLeast}, {"SWI-Prolog", Prolog, 0}}};
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < 9; ++i) {
            own.load.push_back(world.Load());
            own.question.push_back(world.Question());
        }
        for (PeerSeries& peer : peers) {
            if (const std::optional<PeerTimes> times = peer.run(base, world.Answers(), folder)) {
                peer.times.load.push_back(times->load);
                peer.times.question.push_back(times->dialogue / world.Questions());
            }
        }
    }
    const std::string rules = std::to_string(ruleCount) + " rules, ";
    const Medians medians{MedianOf(own.load), MedianOf(own.question)};
    PrintRow(rules + "load", Milliseconds(medians.first));
    PrintRow(rules + "a question of " + std::to_string(world.Questions()), Milliseconds(medians.second));
    for (const PeerSeries& peer : peers) {
        PrintPeer(peer, rules, medians, ruleCount == 30000 ? AtLeast : 0);
    }
    return medians.second;
}

} // namespace

void BenchAdvisor(const std::string& folder)
{
    const double hundred = BenchBase(100, 3, folder);
    const double thousand = BenchBase(1000, 3, folder);
    const double tenThousand = BenchBase(10000, 3, folder);
    const double thirtyThousand = BenchBase(30000, 3, folder);
    PrintRow("a question with 1,000 rules, against 100", Milliseconds(thousand), thousand / hundred,
             GrowthLimit);
    PrintRow("a question with 10,000 rules, against 1,000", Milliseconds(tenThousand), tenThousand / thousand,
             GrowthLimit);
    PrintRow("a question with 30,000 rules, against 10,000", Milliseconds(thirtyThousand),
             thirtyThousand / tenThousand, GrowthLimit * 3 / 10);
}

} // namespace ls::bench
