#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ls::test {

/// A simple model of the advisor: runs whole dialogues on a book's bytes, step by step, without an index, a
/// cache or any of the program's code. Slow on purpose.
///
/// Its log has one line for each thing that a user would see.
class DialogueModel
{
public:
    struct Topic
    {
        std::string name; ///< the header line, with its brackets
        std::size_t pos;  ///< of the first byte, from 0
    };

    DialogueModel(std::string bytes, std::vector<Topic> topics)
        : m_bytes(std::move(bytes)), m_topics(std::move(topics))
    {
    }

    /// Runs a dialogue on the topic with that number, from 1. Each pick is an answer, as the number of a
    /// choice; 0 is the empty item.
    void Run(int topic, const std::vector<std::size_t>& picks, bool reuse);

    [[nodiscard]] bool Ended() const { return m_ended; }

    /// Whether the model gave up, after too many rounds without a question.
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
