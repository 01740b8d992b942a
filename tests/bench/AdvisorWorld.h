#pragma once

#include "bench/AdvisorBase.h"
#include "bench/BenchBooks.h"

#include <string>
#include <vector>

namespace ls::bench {

/// The open book of a rule base, with its topic on show.
class AdvisorWorld
{
public:
    /// The base must outlive it.
    AdvisorWorld(const AdvisorBase& base, const std::string& folder);

    /// Milliseconds of processor time for reading the logic block from the open book file into empty tables.
    double Load();

    /// Holds a dialogue. Returns the milliseconds of processor time for each answered question: from the
    /// reader's answer until the next question and its choices, or the advice and its text, are on show.
    double Question();

    /// Runs all checks on the book.
    void Check();

    /// The answers of the last dialogue in their order. They include variables with one value left, about
    /// which the reader is not asked. The other engines get the same answers.
    [[nodiscard]] const std::vector<Setting>& Answers() const { return m_answers; }
    [[nodiscard]] int Questions() const { return m_questions; }

private:
    const AdvisorBase& m_base;
    BenchWorld m_world;
    Book m_book;
    std::vector<Setting> m_answers;
    int m_questions = 0;
};

} // namespace ls::bench
