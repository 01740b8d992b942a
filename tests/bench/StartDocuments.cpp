#include "bench/StartDocuments.h"

#include "bench/BenchBooks.h"
#include "bench/Measure.h"

#include <filesystem>

namespace ls::bench {

namespace {

constexpr int Topics = 200;
constexpr int Paragraphs = 6;
constexpr std::size_t ParagraphSize = 400;

struct Text
{
    std::string words = Prose(MiB);

    [[nodiscard]] std::string Paragraph(int topic, int number) const
    {
        const auto index = static_cast<std::size_t>(topic * Paragraphs + number);
        std::string paragraph = "So " + words.substr(index * ParagraphSize, ParagraphSize);
        for (char& c : paragraph) {
            c = c == '<' || c == '>' || c == '&' || c == ';' || c == '[' || c == ']' ? ',' : c;
        }
        return paragraph;
    }
};

std::string Title(int topic)
{
    return "Topic " + std::to_string(topic);
}

std::string PageName(int topic)
{
    return "topic" + std::to_string(topic) + ".html";
}

std::string MakeBook(const Text& text, const std::string& path)
{
    std::string book = "LODESTAR BOOK V5.3\r\n";
    for (int topic = 1; topic <= Topics; ++topic) {
        book += "[" + Title(topic) + "]\r\n<H1>" + Title(topic) + "</H1>\r\n";
        for (int number = 0; number < Paragraphs; ++number) {
            book += "\r\n" + text.Paragraph(topic, number) + "\r\n";
        }
    }
    WriteFile(path, book);
    return path;
}

void MakePages(const Text& text, const std::string& folder)
{
    std::filesystem::create_directories(folder);
    for (int topic = 1; topic <= Topics; ++topic) {
        std::string page = "<html><head><title>" + Title(topic) + "</title></head><body>\n" +
                           "<h1><font color=\"#7f0000\"><u>" + Title(topic) + "</u></font></h1>\n";
        for (int number = 0; number < Paragraphs; ++number) {
            page += "<p>" + text.Paragraph(topic, number) + "</p>\n";
        }
        WriteFile(folder + "/" + PageName(topic), page + "</body></html>\n");
    }
}

std::string MakeChm(const std::string& folder)
{
    if (!Installed("chmcmd")) {
        return {};
    }
    std::string project = "[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=bench.chm\n"
                          "Contents file=bench.hhc\nDefault topic=topic1.html\nTitle=Bench\n"
                          "Language=0x409 English\n[FILES]\n";
    std::string contents = "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML><BODY><UL>\n";
    for (int topic = 1; topic <= Topics; ++topic) {
        project += PageName(topic) + "\n";
        contents += "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + Title(topic) +
                    "\"><param name=\"Local\" value=\"" + PageName(topic) + "\"></OBJECT>\n";
    }
    WriteFile(folder + "/bench.hhp", project);
    WriteFile(folder + "/bench.hhc", contents + "</UL></BODY></HTML>\n");
    (void)OutputOf("cd '" + folder + "' && chmcmd bench.hhp 2>&1");
    return folder + "/bench.chm";
}

// Makes a docset, which is a folder of pages with a database of their titles.
std::string MakeZealHome(const Text& text, const std::string& home)
{
    if (!Installed("sqlite3")) {
        return {};
    }
    const std::string contents = home + "/docsets/Bench.docset/Contents";
    MakePages(text, contents + "/Resources/Documents");
    WriteFile(contents + "/Info.plist",
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
              "<key>CFBundleIdentifier</key><string>bench</string><key>CFBundleName</key>"
              "<string>Bench</string><key>DocSetPlatformFamily</key><string>bench</string>"
              "<key>isDashDocset</key><true/><key>dashIndexFilePath</key><string>topic1.html</string>"
              "</dict></plist>\n");
    std::string index = "CREATE TABLE searchIndex(id INTEGER PRIMARY KEY, name TEXT, type TEXT, path TEXT);\n"
                        "BEGIN;\n";
    for (int topic = 1; topic <= Topics; ++topic) {
        index += "INSERT INTO searchIndex(name, type, path) VALUES('" + Title(topic) + "', 'Guide', '" +
                 PageName(topic) + "');\n";
    }
    const std::string database = contents + "/Resources/docSet.dsidx";
    std::filesystem::remove(database);
    WriteFile(home + "/index.sql", index + "COMMIT;\n");
    (void)OutputOf("sqlite3 '" + database + "' <'" + home + "/index.sql'");
    std::filesystem::create_directories(home + "/.config/Zeal");
    WriteFile(home + "/.config/Zeal/Zeal.conf",
              "[General]\ncheck_for_update=false\n\n[docsets]\npath=" + home + "/docsets\n");
    return home;
}

} // namespace

StartDocuments MakeStartDocuments(const std::string& folder)
{
    const Text text;
    MakePages(text, folder + "/chm");
    StartDocuments documents;
    documents.book = MakeBook(text, folder + "/bench.IDA");
    documents.chm = MakeChm(folder + "/chm");
    documents.zealHome = MakeZealHome(text, std::filesystem::absolute(folder + "/zeal-home"));
    return documents;
}

} // namespace ls::bench
