#pragma once

#include "base/StdSubs.h" // BookType
#include "base/Text.h"    // LineEnd

#include <string_view>

namespace ls {

// The words of a book's file. `LineEnd` and `BookType` belong to them, but base needs these two as well.

inline constexpr std::string_view HeaderMagic = "LODESTAR BOOK"; ///< begins the first line of the file
inline constexpr std::string_view HeaderVersion = "V5.3";        ///< follows it in a saved book
inline constexpr std::string_view AuthorKey = "AUTHOR"; ///< a field of that line, like the next three
inline constexpr std::string_view CopyrightKey = "COPYRIGHT";
inline constexpr std::string_view UrlKey = "URL";
inline constexpr std::string_view PostKey = "POST";

inline constexpr std::string_view BookEnd = "[EOF]";        ///< a line that ends the book
inline constexpr std::string_view IndexLine = "<INDEX>";    ///< a line that opens a legacy index
inline constexpr std::string_view IndexEnd = "<END-INDEX>"; ///< the name in an index's last record

inline constexpr std::string_view XrefTag = "<XREF"; ///< begins a line that ends the displayed text
inline constexpr std::string_view XrefOpening = "<XREF TOPIC="; ///< begins a reference's line, case as here
inline constexpr std::string_view XrefClosing = "</XREF>";      ///< within a line of its note, case as here
inline constexpr std::string_view XrefOtherClosing = "<\\"; ///< also ends a note, which then lacks that line

inline constexpr std::string_view BlockOpening = "<IXML>";   ///< a line that opens a topic's logic block
inline constexpr std::string_view BlockClosing = "</IXML>";  ///< a line that closes it
inline constexpr std::string_view LogicOpening = "<LOGIC>";  ///< a line that opens the block's logic lines
inline constexpr std::string_view LogicClosing = "</LOGIC>"; ///< a line that closes them
inline constexpr std::string_view DefinitionsOpening = "<DEFINITIONS>";  ///< opens the entries, within a line
inline constexpr std::string_view DefinitionsClosing = "</DEFINITIONS>"; ///< closes them

inline constexpr std::string_view AssumeWord = "ASSUME"; ///< begins a command, like the next two
inline constexpr std::string_view TargetWord = "TARGET";
inline constexpr std::string_view DefineWord = "DEFINE";

inline constexpr std::string_view DefaultGoal = "AV"; ///< the goal of a block without a TARGET line

inline constexpr std::string_view QuestionOpening = "<Q ID="; ///< opens a question entry, in any letter case
inline constexpr std::string_view QuestionClosing = "</Q>";   ///< closes it, case as here
inline constexpr std::string_view AdviceOpening = "<AV ID=";  ///< opens an advice entry, in any letter case
inline constexpr std::string_view AdviceClosing = "</AV>";    ///< closes it, case as here

inline constexpr std::string_view ProgramFolderPrefix = "LS:"; ///< before a path in the program's folder

} // namespace ls
