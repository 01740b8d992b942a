#include "CheckCases.h"

#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "support/Json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace ls::test {

namespace {

// Replaces "{XX}" by a byte and "{xNUMBER}" by that many "x".
std::string Bytes(const std::string& text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.compare(at, 2, "{x") == 0) {
            bytes.append(static_cast<std::size_t>(std::stoi(text.substr(at + 2))), 'x');
            at = text.find('}', at);
        } else if (text[at] == '{' && at + 3 < text.size() && text[at + 3] == '}') {
            bytes += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16));
            at += 3;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}

void AddLine(std::string& book, const std::string& line)
{
    if (book.empty() && !line.empty() && line.front() == '[') {
        book = "LODESTAR BOOK V5.3\r\n";
    }
    const bool joined = line.ends_with("{}");
    book += Bytes(joined ? line.substr(0, line.size() - 2) : line);
    book += joined ? "" : "\r\n";
}

void ReadCases(const std::string& path, std::vector<CheckCase>& cases)
{
    std::istringstream file(ReadWholeFile(path));
    std::string line;
    bool inBook = false;
    while (std::getline(file, line)) {
        if (line.starts_with("== ")) {
            cases.push_back({line.substr(3), {}, {}});
            inBook = true;
        } else if (line == "--") {
            inBook = false;
        } else if (inBook) {
            AddLine(cases.back().book, line);
        } else if (!line.empty()) {
            cases.back().findings.push_back(line);
        }
    }
}

} // namespace

std::vector<CheckCase> ReadCheckCases()
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(LS_TEST_DATA "/check")) {
        paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<CheckCase> cases;
    for (const std::string& path : paths) {
        ReadCases(path, cases);
    }
    return cases;
}

CheckedBook::CheckedBook(const std::string& bytes)
{
    seams.files["/case.IDA"] = bytes;
    book.BookPath = "/case.IDA";
    EXPECT_TRUE(OpenBook(book, seams.Get()));
    EXPECT_TRUE(ScanBook(book, seams.Get()));
    seams.messages.Take(); // the box for a bad header; the check reports it too
}

std::vector<std::string> Lines(const std::vector<Finding>& findings)
{
    std::vector<std::string> lines;
    for (const Finding& finding : findings) {
        lines.push_back(std::to_string(finding.line) + ": " + SeverityWord(finding.severity) + ": " +
                        finding.rule + ": " + finding.text);
    }
    return lines;
}

std::vector<std::string> FindingsOf(const std::string& bytes)
{
    CheckedBook world(bytes);
    FileError error;
    const std::vector<Finding> found = CheckBook(world.book, world.seams.Get(), nullptr, error);
    EXPECT_TRUE(error.Ok());
    EXPECT_EQ(world.seams.messages.Take(), std::vector<std::string>());
    return Lines(found);
}

} // namespace ls::test
