#pragma once

#include "book/BookFixture.h"
#include "render/html/ExportItem.h"
#include "render/html/ExportTopic.h"

namespace ls {

inline const std::string BookHeaderLine = "LODESTAR BOOK V5.3\r\n";
inline const std::string ExportComplete = "information|Lodestar Advisor|The export is complete.";

/// An output in memory.
struct KeptFile : OutputFile
{
    FileError Write(std::string_view bytes) override
    {
        text += bytes;
        return {};
    }
    FileError Finish() override
    {
        ++finished;
        return {};
    }

    std::string text;
    int finished = 0;
};

/// A book in memory and the export of one of its topics.
struct ExportFixture : BookFixture
{
    KeptFile file;

    bool Export(const std::string& name, int number = 0)
    {
        return ExportTopic(book, world.Get(), name, number, file);
    }

    /// What the export of a topic with these lines writes between "<BODY>" and "</BODY>".
    std::string BodyOf(std::initializer_list<const char*> lines)
    {
        EXPECT_TRUE(Scan(BookHeaderLine + "[A]\r\n" + test::CrLf(lines)));
        file.text.clear();
        EXPECT_TRUE(Export("[A]", 1));
        EXPECT_EQ(world.messages.Take(), Strings{ExportComplete});
        const std::string head = "<HTML>\r\n<HEAD>\r\n<TITLE>A</TITLE>\r\n</HEAD>\r\n<BODY>\r\n";
        const std::string tail = "</BODY>\r\n</HTML>\r\n";
        EXPECT_TRUE(file.text.starts_with(head)) << file.text;
        EXPECT_TRUE(file.text.ends_with(tail)) << file.text;
        return file.text.substr(head.size(), file.text.size() - head.size() - tail.size());
    }
};

} // namespace ls
