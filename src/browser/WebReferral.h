#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;

/// Takes the reader to the web site of the book's author, with `topicName` as the topic viewed last.
///
/// Where the site takes comments (`BookPost` is "yes"), a page is written to the default folder and shown in
/// the browser: its form posts the names of the book and the topic to the site. Else the site itself is
/// shown, after asking. A book without an address ends the program: only a book with one offers this.
void ShowWebReferral(const Book& book, const Seams& seams, Registry& registry, const std::string& topicName);

/// The book's address as the page shows and uses it: what does not begin with "http://" or "https://" gets
/// "http://". These are compared in lower case only, so "HTTP://x" becomes "http://HTTP://x".
[[nodiscard]] std::string SiteOf(const std::string& bookUrl);

/// The book's name for its author's site: the file's name without folder and ".IDA". A type in lower case
/// stays.
[[nodiscard]] std::string BookNameOf(PathRules rules, const std::string& bookPath);

/// The page that refers a reader to the author's site, in the book's code page. Values stand in it as they
/// are in the book.
[[nodiscard]] std::string ReferralPage(const Book& book, PathRules rules, const std::string& topicName);

} // namespace ls
