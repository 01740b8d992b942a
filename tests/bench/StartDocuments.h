#pragma once

#include <cstdint>
#include <string>

namespace ls::bench {

/// The colour of headings in every document: the one that the reading pane has for them. Nothing else on the
/// screen has it.
inline constexpr std::uint32_t HeadingColour = 0x7F0000;

/// One text of 200 topics, in what each viewer opens; empty where the tool that makes it is missing.
struct StartDocuments
{
    std::string book;     ///< for this program
    std::string chm;      ///< compiled by chmcmd, for viewers of such files
    std::string zealHome; ///< a home folder in which zeal finds the text as its only docset
};

/// Makes them below `folder`.
[[nodiscard]] StartDocuments MakeStartDocuments(const std::string& folder);

} // namespace ls::bench
