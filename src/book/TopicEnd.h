#pragma once

#include "base/FilePos.h"

namespace ls {

struct Book;

/// Where a topic of the file ends: at the next topic, else where the scan stopped. A line in between that
/// begins with "[" but is no header ("[]", a line of a note) belongs to the topic and must not cut it short.
[[nodiscard]] FilePos EndOfTopic(const Book& book, int number);

} // namespace ls
