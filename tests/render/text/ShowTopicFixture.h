#pragma once

#include "book/BookFixture.h"
#include "render/text/ShowTopic.h"

namespace ls {

inline const std::string Header = "LODESTAR BOOK V5.3\r\n";

/// A book in memory and the topic that was shown last.
struct ShowTopicTest : BookFixture
{
    ShownTopic shown;
    std::string name;
    Count16 number;

    ShowResult Show(const std::string& topicName, int topicNumber = 0, int width = 40)
    {
        name = topicName;
        number = topicNumber;
        return ShowTopic(book, world.Get(), name, number, width, shown);
    }

    // Shows topic 1, "[A]", of a book with this body and returns its lines.
    Strings ShowBody(const std::string& body, int width = 40)
    {
        EXPECT_TRUE(Scan(Header + "[A]\r\n" + body));
        EXPECT_EQ(Show("A", 1, width), ShowResult::Shown);
        return Lines();
    }

    [[nodiscard]] Strings Lines() const
    {
        Strings lines;
        for (int i = 1; i <= shown.lines.Count; ++i) {
            lines.push_back(shown.lines(i));
        }
        return lines;
    }

    // Opens bytes that are no book and agrees to show them as plain text.
    void OpenPlain(const std::string& bytes)
    {
        world.messages.replies = {Reply::Ok};
        ASSERT_TRUE(Open(bytes));
        world.messages.Take();
        ASSERT_EQ(book.TopicCount, 0);
    }

    [[nodiscard]] FilePos PosBehind(const std::string& text)
    {
        return static_cast<FilePos>(world.files["/work/Book.IDA"].find(text) + text.size() + 1);
    }
};

} // namespace ls
