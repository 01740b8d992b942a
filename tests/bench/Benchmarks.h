#pragma once

#include <string>

namespace ls::bench {

/// Scans a book of 200 MiB against a search for its header lines and a count of its lines, and compares the
/// memory of two scans. `program` is this program's own path: the memory is that of a process of its own.
void BenchScan(const std::string& program, const std::string& folder);

/// Prints the peak memory, in KiB, of this process after scanning that book.
void ReportScanMemory(const std::string& path);

/// Checks a book of 200 MiB against its scan.
void BenchCheck(const std::string& folder);

/// Shows the last topic of a large book against its first one.
void BenchShow(const std::string& folder);

/// Saves that book with one topic edited, against a copy of it by dd.
void BenchSave(const std::string& folder);

/// Shows a topic of 30,000 display lines again, as a step of a resize does, against a copy of its lines.
void BenchResize(const std::string& folder);

/// Wraps lines of 25, 50 and 100 MiB.
void BenchLines();

/// Wraps texts of 64 MiB, beside fold -s.
void BenchWrap(const std::string& folder);

/// Exports every topic of a book of 25,000, beside pandoc on the same text.
void BenchExport(const std::string& folder);

/// Ten times the topics, lines and rules beside the tenth of them.
void BenchGrowth(const std::string& folder);

/// Writes the recovery journal of books with edits, and looks at one without.
void BenchJournal(const std::string& folder);

/// Loads rule bases of 100 to 30,000 rules and holds a whole dialogue on each, beside CLIPS and SWI-Prolog.
void BenchAdvisor(const std::string& folder);

} // namespace ls::bench
