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
    std::string path;    ///< the full path of the file that was open, in the system's bytes; empty for none
    FilePos size = 0;    ///< of that file, in bytes
    bool locked = false; ///< it was open for editing by this program alone

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

/// A place in the table of topics.
struct JournalTopic
{
    std::string name;   ///< the header line, with its brackets
    int fileNumber = 0; ///< the how manyeth topic of the file it is, from 1; 0 for one that was added
    bool deleted = false;

    friend bool operator==(const JournalTopic&, const JournalTopic&) = default;
};

/// What was edited of one topic. It names its topic itself, so that it can be read where the table cannot.
struct JournalRec
{
    int topic = 0; ///< the number in the table, from 1
    std::string name;
    bool deleted = false;
    std::string text;
    std::string logic;

    friend bool operator==(const JournalRec&, const JournalRec&) = default;
};

/// The unsaved edits of one book, as they are kept beside it for the case that the program ends before they
/// are saved. A part that could not be read back from a damaged file is missing.
struct Journal
{
    std::int64_t written = 0; ///< seconds since the beginning of 1970; 0 when it is not known
    std::optional<JournalBook> book;
    std::optional<JournalHeader> header;
    std::optional<std::vector<JournalTopic>> topics; ///< the whole table, in its order
    std::vector<JournalRec> recs;                    ///< of the edited topics, by their numbers
    RunningEdits running;
};

} // namespace ls
