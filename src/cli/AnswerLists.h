#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// The answers for one dialogue after another, UTF-8.
using AnswerLists = std::vector<std::vector<std::string>>;

/// Reads the value of --answers: ";" parts the dialogues, "," the answers of one; "-" alone stands for none.
[[nodiscard]] AnswerLists SplitAnswers(std::string_view text);

/// Reads a JSON text that is a list of lists of texts; nothing when it is anything else.
[[nodiscard]] std::optional<AnswerLists> ReadAnswersJson(std::string_view text);

/// What an answer means among the choices: the choice itself, "?" for "? - unsure", "#n" for the nth choice.
/// Anything else comes back as it is.
[[nodiscard]] std::string MeantAnswer(const std::string& answer, const std::vector<std::string>& choices);

} // namespace ls
