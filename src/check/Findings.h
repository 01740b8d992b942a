#pragma once

#include "base/Quoted.h"
#include "check/Finding.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Collects the findings of all rules. All texts are UTF-8.
class Findings
{
public:
    explicit Findings(std::string file) : m_file(std::move(file)) {}

    /// Later findings belong to the topic with that title (without brackets).
    void InTopic(std::string title) { m_topic = std::move(title); }

    void Error(std::string_view rule, int line, std::string text)
    {
        Add(Severity::Error, rule, line, std::move(text));
    }
    void Warning(std::string_view rule, int line, std::string text)
    {
        Add(Severity::Warning, rule, line, std::move(text));
    }

    /// The number of errors so far.
    [[nodiscard]] int ErrorCount() const { return m_errors; }

    /// All findings by line, and those of one line in the order in which they were found. Empties the
    /// collection.
    [[nodiscard]] std::vector<Finding> TakeSorted();

private:
    void Add(Severity severity, std::string_view rule, int line, std::string text);

    std::string m_file;
    std::string m_topic;
    int m_errors = 0;
    std::deque<Finding> m_list; ///< a deque, so that growing moves no elements
};

} // namespace ls
