#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// One list of answers for each dialogue, UTF-8.
using AnswerLists = std::vector<std::vector<std::string>>;

/// Reads the value of --answers. ";" separates dialogues, "," the answers of one; "-" alone is an empty list.
[[nodiscard]] AnswerLists SplitAnswers(std::string_view text);

/// Reads a JSON text that is a list of lists of texts; nothing for any other text.
[[nodiscard]] std::optional<AnswerLists> ReadAnswersJson(std::string_view text);

/// The choice that an answer means: the choice itself, "?" for "? - unsure", "#n" for choice number n. Any
/// other answer comes back unchanged.
[[nodiscard]] std::string MeantAnswer(const std::string& answer, const std::vector<std::string>& choices);

} // namespace ls
