#include "authoring/TextEditing.h"
#include "base/QuietMessages.h"
#include "bench/BenchBooks.h"
#include "bench/GrowthRows.h"
#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "render/html/ExportTopic.h"
#include "render/print/PageRecorder.h"
#include "render/print/PrintSettings.h"
#include "render/print/PrintTopic.h"
#include "render/text/ShowTopic.h"

namespace ls::bench {

namespace {

// A book of one topic with that many lines. None of them wraps at 80 characters.
std::string WriteLines(const std::string& folder, int lines)
{
    constexpr std::size_t length = 70;
    const std::string prose = Prose(length * static_cast<std::size_t>(lines));
    std::string text = "LODESTAR BOOK V5.3\r\n[Long]\r\n";
    for (int line = 0; line < lines; ++line) {
        text += "So " + prose.substr(length * static_cast<std::size_t>(line), length) + "\r\n";
    }
    const std::string path = folder + "/lines-" + std::to_string(lines) + ".IDA";
    WriteFile(path, text);
    return path;
}

class NoOutput : public OutputFile
{
public:
    FileError Write(std::string_view /*bytes*/) override { return {}; }
    FileError Finish() override { return {}; }
};

// Answers every box silently: an export ends with one, and stray brackets cause a question.
class LongTopic
{
public:
    LongTopic(const std::string& folder, int lines)
    {
        m_book.BookPath = WriteLines(folder, lines);
        Require(OpenBook(m_book, m_world.Get()) && ScanBook(m_book, m_world.Get()), "the book opens");
        m_book.CurrentTopicName = "[Long]";
        m_book.CurrentTopicNo = 1;
        std::string name = "[Long]";
        Count16 number = 1;
        Require(LoadTopicRec(m_book, m_world.Get(), name, number), "the topic can be edited");
        m_text = TextToEdit(m_book);
        m_book.TopicRecs(1).Text.clear();
    }

    void Show()
    {
        std::string name = "[Long]";
        Count16 number = 1;
        ShownTopic shown;
        Require(ShowTopic(m_book, m_world.Get(), name, number, 80, shown) == ShowResult::Shown,
                "it is shown");
    }

    void Export()
    {
        NoOutput output;
        Require(ExportTopic(m_book, Silent(), "[Long]", 1, output), "it is exported");
    }

    void Print()
    {
        const PrinterState state{9, false, true, 11906, 16838, 11340, 16272}; // A4
        PageRecorder printer(state, 240);
        PrintSettings settings;
        Require(PrintTopic(m_book, m_world.Get(), printer, settings, "[Long]", 1).error.Ok(),
                "it is printed");
        Require(printer.Pages().size() > 10, "on its pages");
    }

    void Check()
    {
        FileError error;
        (void)CheckBook(m_book, m_world.Get(), nullptr, error);
        Require(error.Ok(), "it is checked");
    }

    void Edit()
    {
        Require(SaveTopicText(m_book, m_world.Get(), m_text).stored, "its text is stored");
        m_book.TopicRecs(1).Text.clear();
    }

private:
    Seams Silent()
    {
        const Seams seams = m_world.Get();
        return {seams.files, m_quiet, seams.processes, seams.end, seams.paths};
    }

    BenchWorld m_world;
    QuietMessages m_quiet{m_world.Get().end};
    Book m_book;
    std::string m_text;
};

} // namespace

void BenchLineGrowth(const std::string& folder)
{
    LongTopic small(folder, 3000);
    LongTopic large(folder, 30000);
    const GrowthRows rows("30,000 lines beside 3,000: ");
    const auto compare = [&](const char* what, const std::function<void(LongTopic&)>& work) {
        rows.Measure(
            what, 15, [&] { work(large); }, [&] { work(small); });
    };
    compare("show and wrap", &LongTopic::Show);
    compare("export", &LongTopic::Export);
    compare("print", &LongTopic::Print);
    compare("check", &LongTopic::Check);
    compare("store what was edited", &LongTopic::Edit);
}

} // namespace ls::bench
