#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ls::test {

/// A plain reading of the advisor's rules: whole dialogues on a book's bytes, step for step as the rules are
/// told, without an index, a cache or a line of the program's own code. Slow, and meant to be.
///
/// It keeps a log, a line for each thing that a reader would see.
class DialogueModel
{
public:
    struct Topic
    {
        std::string name; ///< the header line, with its brackets
        std::size_t pos;  ///< of its first byte, from 0
    };

    DialogueModel(std::string bytes, std::vector<Topic> topics)
        : m_bytes(std::move(bytes)), m_topics(std::move(topics))
    {
    }

    /// One dialogue on the topic of that number (from 1). Each pick stands for an answer: `picks[i]` counts
    /// through the choices; 0 stands for the empty item.
    void Run(int topic, const std::vector<std::size_t>& picks, bool reuse);

    [[nodiscard]] bool Ended() const { return m_ended; }

    /// Whether the dialogue went on for so many rounds without the reader that the model lost patience.
    [[nodiscard]] bool GaveUp() const { return m_gaveUp; }

    std::vector<std::string> log;

private:
    struct Fact
    {
        std::string var;
        std::string value;
        int topic;
    };
    struct Values
    {
        std::string text;
        int count = 0;
        bool derived = false;
    };

    bool ReadLine(std::string& line);
    bool FindBlock(int topic);
    bool Load(int topic, bool additional, std::string& advice);
    bool FindLogic(bool additional);
    bool ReadLogic(bool additional);
    bool TakeCommand(const std::string& line, bool additional, std::string& assumption);
    void ReadQuestions(int topic);
    std::string Replay(int topic, std::string advice);
    void Reduce(const std::string& var, const std::string& value);
    std::string Assert(const std::string& var, int topic, const std::string& value);
    std::string Record(const std::string& var, const std::string& value, int topic);
    std::string Pick();
    [[nodiscard]] Values Collect(const std::string& var) const;
    int Goto(const std::string& var, std::string& advice);
    std::string ReadTagged(const std::string& tag);
    void AskNext();
    void Ask(const std::string& text, const Values& values);
    void DispA(const std::string& advice);
    bool Answer(std::size_t pick);
    void Trace();
    bool Box(const std::string& icon, const std::string& text);
    void End(const std::string& reason);
    void Close();

    std::string m_bytes;
    std::vector<Topic> m_topics;
    std::size_t m_pos = 0;
    std::size_t m_definitions = 0;
    int m_topic = 0;
    std::vector<std::string> m_rules;
    std::vector<std::string> m_targets;
    std::vector<Fact> m_vars; ///< without a value
    std::vector<int> m_loaded;
    std::vector<Fact> m_answers;
    std::string m_currentVar;
    int m_currentTopic = 0;
    std::vector<std::string> m_choices;
    bool m_reuse = false;
    bool m_over = false;
    bool m_ended = false;
    bool m_gaveUp = false;
};

} // namespace ls::test
