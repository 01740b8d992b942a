#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "book/SaveBook.h"

#include <chrono>
#include <filesystem>
#include <vector>

namespace ls::bench {

namespace {

constexpr std::size_t LargeBook = 200 * MiB;
constexpr int Rounds = 5;
constexpr double SaveLimit = 1.5;

// Wall time, because saving and copying wait for the disk.
double WallTimeOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

void BenchSave(const std::string& folder)
{
    const std::string path = BookOfSize(folder, LargeBook);
    const std::string saved = folder + "/saved.IDA";
    const std::string copied = folder + "/copied.IDA";
    BenchWorld world;
    Book book;
    world.Load(book, path);
    book.TopicRecs(TopicsOfABook / 2).Text = "One topic was edited.\r\n";
    std::vector<double> saves;
    std::vector<double> copies;
    for (int round = 0; round < Rounds; ++round) {
        std::filesystem::remove(copied);
        copies.push_back(WallTimeOf([&] {
            const std::string told =
                OutputOf("LC_ALL=C dd if='" + path + "' of='" + copied + "' bs=1M conv=fsync 2>&1");
            Require(told.find("records out") != std::string::npos, "dd copies the book");
        }));
        std::filesystem::remove(saved);
        saves.push_back(WallTimeOf([&] {
            Require(SaveBook(book, world.Get(), saved) == WriteOutcome::Written, "the book is saved");
        }));
    }
    Book again;
    again.BookPath = saved;
    Require(OpenBook(again, world.Get()) && ScanBook(again, world.Get()), "the saved book opens");
    Require(again.TopicCount == TopicsOfABook, "the saved book has its topics");
    std::filesystem::remove(copied);
    std::filesystem::remove(saved);
    const double copy = MedianOf(copies);
    const double save = MedianOf(saves);
    PrintRow("dd bs=1M conv=fsync of 200 MiB", Milliseconds(copy));
    PrintRow("save of the same book, one topic of 30,000 edited", Milliseconds(save), save / copy, SaveLimit);
}

} // namespace ls::bench
