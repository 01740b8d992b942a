#include "base/QuietMessages.h"
#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "render/html/ExportTopic.h"

#include <filesystem>
#include <fstream>

namespace ls::bench {

namespace {

constexpr int Topics = 25000;

// The same text twice: as a book, and in pandoc's markup.
struct Texts
{
    std::string book = "LODESTAR BOOK V5.3\r\n";
    std::string markdown;

    void Line(const std::string& inBook, const std::string& inMarkdown)
    {
        book += inBook + "\r\n";
        markdown += inMarkdown + "\n";
    }
    void Paragraph(const std::string& begin, const std::string& marked, const std::string& end)
    {
        Line(begin + " <B>" + marked + "</B> " + end, begin + " **" + marked + "** " + end + "\n");
    }
};

// A heading, a paragraph, a list of three, and a paragraph: about 700 characters.
void AddTopic(Texts& texts, int number, const std::string& words)
{
    const std::string title = "Topic " + std::to_string(number);
    texts.book += "[" + title + "]\r\n";
    texts.Line("<H1>" + title + "</H1>", "# " + title + "\n");
    texts.Paragraph("So " + words.substr(0, 150), words.substr(150, 20), words.substr(170, 100));
    for (const std::size_t item : {270U, 320U, 370U}) {
        texts.Line("- It " + words.substr(item, 50), "- It " + words.substr(item, 50));
    }
    texts.markdown += "\n";
    texts.Paragraph("Then " + words.substr(420, 50), words.substr(470, 20), words.substr(490, 150));
}

// Whole words that neither notation takes for markup, without a blank at either end.
std::string PlainWords()
{
    std::string words = Prose(MiB);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool letter = (words[i] >= 'a' && words[i] <= 'z') || words[i] == ' ';
        words[i] = letter && i % 10 != 0 && i % 10 != 9 ? words[i] : 'o';
    }
    return words;
}

Texts MakeTexts()
{
    const std::string words = PlainWords();
    Texts texts;
    for (int number = 1; number <= Topics; ++number) {
        const std::size_t at = static_cast<std::size_t>(number) * 370 % (words.size() - 1000) / 10 * 10;
        AddTopic(texts, number, words.substr(at, 700));
    }
    return texts;
}

// One file that receives all topics, one after the other.
class OneFile : public OutputFile
{
public:
    explicit OneFile(const std::string& path) : m_file(path, std::ios::binary) {}
    FileError Write(std::string_view bytes) override
    {
        m_file << bytes;
        return {};
    }
    FileError Finish() override
    {
        Require(m_file.good(), "a topic is exported");
        return {};
    }

private:
    std::ofstream m_file;
};

void ExportAll(const std::string& path, const std::string& html)
{
    BenchWorld world;
    Seams seams = world.Get();
    QuietMessages quiet(seams.end); // each export ends with a box
    const Seams silent{seams.files, quiet, seams.processes, seams.end, seams.paths};
    Book book;
    book.BookPath = path;
    Require(OpenBook(book, seams) && ScanBook(book, seams), "the book is read");
    Require(book.TopicCount == Topics, "it has all topics");
    OneFile output(html);
    for (int number = 1; number <= Topics; ++number) {
        Require(ExportTopic(book, silent, book.TopicNames(number), number, output), "a topic is exported");
    }
}

void RequireTopics(const std::string& html, const std::string& last)
{
    std::ifstream file(html, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    Require(text.find(last) != std::string::npos, "the last topic is in what was exported");
}

} // namespace

void BenchExport(const std::string& folder)
{
    const Texts texts = MakeTexts();
    const std::string book = folder + "/export.IDA";
    const std::string markdown = folder + "/export.md";
    const std::string html = folder + "/export.html";
    WriteFile(book, texts.book);
    WriteFile(markdown, texts.markdown);
    const double own = Measure(5, [&] { ExportAll(book, html); });
    RequireTopics(html, "<H1>Topic 25000</H1>");
    PrintRow("export of 25,000 topics, " + std::to_string(texts.book.size() / MiB) + " MiB",
             Milliseconds(own));
    if (!Installed("pandoc")) {
        PrintRow("pandoc is not installed", "");
        return;
    }
    for (const char* reader : {"commonmark"}) {
        const std::string command = std::string("pandoc -f ") + reader + " -t html ";
        const double peer = TimeOf([&] { (void)OutputOf(command + markdown + " -o " + html); });
        RequireTopics(html, ">Topic 25000</h1>");
        PrintFaster(command + "of the same text, once", Milliseconds(peer), peer / own, 0);
    }
    std::filesystem::remove(html);
}

} // namespace ls::bench
