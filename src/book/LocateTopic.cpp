#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/BookLoader.h"

#include <algorithm>

namespace ls {

namespace {

// The number of the first topic with exactly that name, or 0. Deleted topics count too.
int FindTopic(const Book& book, const std::string& key)
{
    const auto end = book.TopicNames.begin() + book.TopicCount;
    const auto found = std::find(book.TopicNames.begin(), end, key);
    return found == end ? 0 : static_cast<int>(found - book.TopicNames.begin()) + 1;
}

} // namespace

void ShowNotFound(const Seams& seams, const std::string& key)
{
    seams.messages.MsgBox("Topic " + FromBook(key) + " was not found.", Icon::Warning);
}

void ShowFetchError(const Seams& seams, const std::string& name, const FileError& error)
{
    seams.messages.MsgBox("Failed to fetch topic " + FromBook(name) + DueTo(error), Icon::Warning);
}

TopicLocation GoToTopic(const Book& book, LineCursor& cursor, const std::string& key, Count16& number,
                        FileError& error)
{
    error = {};
    if (number == 0) {
        number = FindTopic(book, key);
    }
    const bool inTable = number > 0 && number <= book.TopicPos.UpperBound();
    const FilePos pos = inTable ? book.TopicPos(number) : 0;
    if (pos == 0) {
        return TopicLocation::Unknown;
    }
    cursor.Seek(pos);
    std::string line;
    error = cursor.ReadLine(line);
    if (!error.Ok()) {
        return TopicLocation::Unreadable;
    }
    return Trim(line) == key ? TopicLocation::Found : TopicLocation::Moved;
}

void LocateTopic(const Book& book, const Seams& seams, LineCursor& cursor, std::string& name, Count16& number)
{
    if (name.empty()) {
        return;
    }
    const std::string key = name.front() == '[' ? name : "[" + name + "]";
    FileError error;
    switch (GoToTopic(book, cursor, key, number, error)) {
    case TopicLocation::Found:
        return;
    case TopicLocation::Unknown:
        ShowNotFound(seams, key);
        break;
    case TopicLocation::Unreadable:
        ShowFetchError(seams, name, error);
        break;
    case TopicLocation::Moved:
        seams.messages.MsgBox("Error looking up topic: " + FromBook(key), Icon::Warning);
        break;
    }
    name.clear();
}

} // namespace ls
