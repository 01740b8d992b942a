#pragma once

#include "bench/AdvisorBase.h"
#include "bench/BenchBooks.h"

#include <string>
#include <vector>

namespace ls::bench {

/// The book of a base with its topic on show.
class AdvisorWorld
{
public:
    /// The base must outlive it.
    AdvisorWorld(const AdvisorBase& base, const std::string& folder);

    /// Milliseconds of processor time for reading the logic block from the open book file into empty tables.
    double Load();

    /// Milliseconds of processor time for each answered question: from the reader's answer until the next
    /// question is on show with its choices, or the advice with its text. `Answers` are those of the last
    /// dialogue.
    double Question();

    /// All that is found in the book by a check.
    void Check();

    /// The answers of the last dialogue in their order, also those to variables with one value left, for
    /// which the reader is not asked. The other engines get them too.
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
