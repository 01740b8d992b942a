#pragma once

#include <string>

namespace ls::bench {

/// Compares the scan of a book of 200 MiB with a search for its header lines and a count of its lines. Also
/// compares the memory of two scans, each in its own process: `program` is this program's path.
void BenchScan(const std::string& program, const std::string& folder);

/// Prints the peak memory, in KiB, of this process after scanning that book.
void ReportScanMemory(const std::string& path);

/// Compares the check of a book of 200 MiB with its scan.
void BenchCheck(const std::string& folder);

/// Compares showing the last topic of a large book with showing its first one.
void BenchShow(const std::string& folder);

/// Compares saving that book, with one topic edited, with a copy of it by dd.
void BenchSave(const std::string& folder);

/// Compares one step of a resize, which shows a topic of 30,000 display lines again, with a copy of its
/// lines.
void BenchResize(const std::string& folder);

/// Wraps lines of 25, 50 and 100 MiB.
void BenchLines();

/// Compares wrapping texts of 64 MiB with fold -s.
void BenchWrap(const std::string& folder);

/// Compares the export of all 25,000 topics of a book with pandoc on the same text.
void BenchExport(const std::string& folder);

/// Compares the time for ten times the topics, lines and rules with the time for one tenth.
void BenchGrowth(const std::string& folder);

/// Writes the recovery journal of books with edits, and looks for edits in a book without any.
void BenchJournal(const std::string& folder);

/// Loads rule bases of 100 to 30,000 rules and holds a whole dialogue on each. Compares with CLIPS and
/// SWI-Prolog.
void BenchAdvisor(const std::string& folder);

} // namespace ls::bench
