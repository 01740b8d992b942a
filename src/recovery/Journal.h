#pragma once

#include "authoring/RunningEdits.h"
#include "base/FilePos.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ls {

/// Which file the edits belong to.
struct JournalBook
{
    std::string path;    ///< full path of the open file, in the system's bytes; empty if there is no file
    FilePos size = 0;    ///< size of that file, in bytes
    bool locked = false; ///< this program had it open for editing, and no other could open it

    friend bool operator==(const JournalBook&, const JournalBook&) = default;
};

/// The fields of the book's header line that an author edits.
struct JournalHeader
{
    std::string author;
    std::string copyright;
    std::string url;
    std::string post;

    friend bool operator==(const JournalHeader&, const JournalHeader&) = default;
};

/// One row of the table of topics.
struct JournalTopic
{
    std::string name;   ///< the header line, with its brackets
    int fileNumber = 0; ///< its position in the file, from 1; 0 if added since
    bool deleted = false;

    friend bool operator==(const JournalTopic&, const JournalTopic&) = default;
};

/// The edits of one topic. It holds the topic's name too, so that it can be used when the table is damaged.
struct JournalRec
{
    int topic = 0; ///< number in the table, from 1
    std::string name;
    bool deleted = false;
    std::string text;
    std::string logic;

    friend bool operator==(const JournalRec&, const JournalRec&) = default;
};

/// The unsaved edits of one book, stored on disk in case the program ends before they are saved. A part that
/// could not be read from a damaged file is missing.
struct Journal
{
    std::int64_t written = 0; ///< seconds since the beginning of 1970; 0 if unknown
    std::optional<JournalBook> book;
    std::optional<JournalHeader> header;
    std::optional<std::vector<JournalTopic>> topics; ///< the whole table, in its order
    std::vector<JournalRec> recs;                    ///< the edited topics, ordered by number
    RunningEdits running;
};

} // namespace ls
