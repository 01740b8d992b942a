#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;

/// Takes the reader to the web site of the book's author; `topicName` is the topic viewed last.
///
/// If the site takes comments (`BookPost` is "yes"), a page is written to the default folder and shown in the
/// browser; its form posts the names of the book and the topic to the site. Otherwise the user is asked, and
/// the site itself is shown. A book without an address ends the program, because the command is offered only
/// for books with one.
void ShowWebReferral(const Book& book, const Seams& seams, Registry& registry, const std::string& topicName);

/// The book's address in the page. An address that does not begin with "http://" or "https://" gets
/// "http://". Intended: only small letters count, so "HTTP://x" becomes "http://HTTP://x".
[[nodiscard]] std::string SiteOf(const std::string& bookUrl);

/// The book's name for its author's site: the file's name without folder and ".IDA". Intended: an ".ida"
/// in small letters stays.
[[nodiscard]] std::string BookNameOf(PathRules rules, const std::string& bookPath);

/// The page that takes a reader to the author's site, in the book's code page. Values are written as they are
/// in the book, without escapes.
[[nodiscard]] std::string ReferralPage(const Book& book, PathRules rules, const std::string& topicName);

} // namespace ls
