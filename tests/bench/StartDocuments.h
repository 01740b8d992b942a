#pragma once

#include <cstdint>
#include <string>

namespace ls::bench {

/// The colour of headings in every document, as in the reading pane. Nothing else on the screen has it.
inline constexpr std::uint32_t HeadingColour = 0x7F0000;

/// One text of 200 topics in the formats of the viewers. A path is empty if the tool that makes the file is
/// missing.
struct StartDocuments
{
    std::string book;     ///< for this program
    std::string chm;      ///< compiled by chmcmd, for viewers of such files
    std::string zealHome; ///< a home folder in which zeal finds the text as its only docset
};

/// Makes the documents in `folder`.
[[nodiscard]] StartDocuments MakeStartDocuments(const std::string& folder);

} // namespace ls::bench
