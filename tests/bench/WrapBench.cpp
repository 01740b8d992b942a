#include "base/LineCursor.h"
#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "render/text/TopicBody.h"
#include "render/text/WrapSegment.h"

#include <filesystem>
#include <fstream>

namespace ls::bench {

namespace {

constexpr int Width = 80;
constexpr std::size_t TextSize = 64 * MiB;
constexpr std::size_t PieceSize = 32 * 1024; // fits into a processor cache
constexpr double AtLeast = 5;
constexpr double AtLeastWithTags = 1;

// Letters, blanks and commas only: without markup both programs have the same work.
std::string PlainProse(std::size_t size)
{
    std::string prose = Prose(size);
    for (char& c : prose) {
        c = c == '<' || c == '>' || c == '&' || c == ';' || c == '[' || c == ']' ? ',' : c;
    }
    return prose;
}

// The prose in lines of `lineLength` with CR LF line ends. Writes the file if it is missing.
std::string TextOf(const std::string& path, const std::string& prose, std::size_t lineLength)
{
    if (!std::filesystem::exists(path)) {
        std::string text;
        for (std::size_t at = 0; at < prose.size(); at += lineLength) {
            text += prose.substr(at, lineLength) + "\r\n";
        }
        WriteFile(path, text);
    }
    return path;
}

// Does the work of fold: reads the text and writes it wrapped, in pieces.
void WrapFile(const std::string& path)
{
    LinuxFileSystem files;
    std::unique_ptr<BookFile> file;
    Require(files.OpenForReading(path, Sharing::Shared, file).Ok(), "the text opens");
    std::ofstream out("/dev/null", std::ios::binary);
    LineCursor cursor(*file);
    FileBody body(cursor);
    std::string_view line;
    LineCursor* more = nullptr;
    std::string segment;
    std::string wrapped;
    std::size_t total = 0;
    while (body.NextPart(line, more)) {
        LineRemainder rest(line, more);
        do {
            WrapSegment(rest, Width, 0, segment);
            wrapped += segment;
            wrapped += '\n';
            if (wrapped.size() > PieceSize) {
                total += wrapped.size();
                out << wrapped;
                wrapped.clear();
            }
        } while (!rest.Blank());
    }
    out << wrapped << std::flush;
    Require(body.Error().Ok(), "the text is read");
    Require(out.good() && total > TextSize * 9 / 10, "the whole text is wrapped");
}

void BenchText(const std::string& what, const std::string& path, double atLeast)
{
    const std::vector<double> times = MeasureInTurns(
        5, {[&path] { WrapFile(path); },
            [&path] {
                (void)OutputOf("LC_ALL=C fold -s -w " + std::to_string(Width) + " '" + path + "' >/dev/null");
            }});
    PrintRow("fold -s of " + what, Milliseconds(times[1]));
    PrintFaster("wrap of the same text and width", Milliseconds(times[0]), times[1] / times[0], atLeast);
}

} // namespace

void BenchWrap(const std::string& folder)
{
    const std::string plain = PlainProse(TextSize);
    BenchText("64 MiB, lines of 500", TextOf(folder + "/wrap-500.txt", plain, 500), AtLeast);
    BenchText("64 MiB, lines of 5,000", TextOf(folder + "/wrap-5000.txt", plain, 5000), AtLeast);
    // Here the work differs, as fold treats tags as text.
    BenchText("64 MiB with tags, lines of 500", TextOf(folder + "/wrap-tags.txt", Prose(TextSize), 500),
              AtLeastWithTags);
    BenchText("64 MiB, one line", TextOf(folder + "/wrap-1.txt", plain, TextSize), AtLeast);
}

} // namespace ls::bench
