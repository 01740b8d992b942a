// Exporting every topic of a book.

#include "World.h"
#include "base/FileSystem.h"
#include "render/ExportTopic.h"

#include <memory>

namespace ls::fuzz {

namespace {

void RequireDocument(const std::string& html, const std::string& title)
{
    const std::string head = "<HTML>\r\n<HEAD>\r\n<TITLE>" + title + "</TITLE>\r\n</HEAD>\r\n<BODY>\r\n";
    const std::string foot = "</BODY>\r\n</HTML>\r\n";
    Require(html.size() >= head.size() + foot.size(), "a document has a head and a foot");
    RequireEqual(html.substr(0, head.size()), head, "a document begins with its head");
    RequireEqual(html.substr(html.size() - foot.size()), foot, "a document ends with its foot");
    for (std::size_t at = html.find('\r'); at != std::string::npos; at = html.find('\r', at + 1)) {
        Require(html[at + 1] == '\n', "every line ends in CR LF");
    }
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    Book book;
    if (!world.OpenBookOf(book, AsBook(input.Text()))) {
        return;
    }
    for (int i = 1; i <= book.TopicCount && i <= 50; ++i) {
        const std::string& name = book.TopicNames(static_cast<std::size_t>(i));
        const std::string path = "/work/" + std::to_string(i) + ".htm";
        std::unique_ptr<OutputFile> file;
        Require(world.files.CreateNew(path, file).Ok(), "the export's file can be made");
        world.messages.texts.clear();
        const bool exported = ExportTopic(book, world.Get(), name, i, *file);
        const std::string& html = world.files[path];
        if (!name.ends_with(']') || html.empty()) {
            continue; // a header line without its bracket: the topic is not found
        }
        Require(exported, "a topic that is in its place can be exported");
        RequireEqual(world.messages.texts, {"The export is complete."}, "an export says that it is complete");
        RequireDocument(html, name.size() > 2 ? name.substr(1, name.size() - 2) : name);
    }
}

} // namespace ls::fuzz
