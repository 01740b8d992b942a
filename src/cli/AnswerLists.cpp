#include "cli/AnswerLists.h"

#include "advisor/AdvisorTables.h"
#include "base/CodePage.h"

#include <algorithm>
#include <charconv>

namespace ls {

namespace {

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

bool IsHighSurrogate(unsigned code)
{
    return code >= 0xD800 && code < 0xDC00;
}

bool IsLowSurrogate(unsigned code)
{
    return code >= 0xDC00 && code < 0xE000;
}

// Reads a small part of JSON: lists of lists of strings.
class AnswersReader
{
public:
    explicit AnswersReader(std::string_view text) : m_text(text) {}

    std::optional<AnswerLists> Read()
    {
        AnswerLists lists;
        const bool good = List([this, &lists] {
            lists.emplace_back();
            return List([this, &lists] { return String(lists.back().emplace_back()); });
        });
        Blanks();
        return good && m_text.empty() ? std::optional(lists) : std::nullopt;
    }

private:
    void Blanks() { m_text.remove_prefix(std::min(m_text.find_first_not_of(" \t\r\n"), m_text.size())); }

    bool Take(char c)
    {
        Blanks();
        if (m_text.empty() || m_text.front() != c) {
            return false;
        }
        m_text.remove_prefix(1);
        return true;
    }

    template <typename Element>
    bool List(Element element)
    {
        if (!Take('[')) {
            return false;
        }
        if (Take(']')) {
            return true;
        }
        do {
            if (!element()) {
                return false;
            }
        } while (Take(','));
        return Take(']');
    }

    bool String(std::string& value)
    {
        if (!Take('"')) {
            return false;
        }
        while (!m_text.empty()) {
            const char c = m_text.front();
            m_text.remove_prefix(1);
            if (c == '"') {
                return true;
            }
            if (static_cast<unsigned char>(c) < 0x20 || (c == '\\' && !Escape(value))) {
                return false;
            }
            if (c != '\\') {
                value += c;
            }
        }
        return false;
    }

    bool Escape(std::string& value)
    {
        static constexpr std::string_view letters = "\"\\/bfnrt";
        static constexpr std::string_view meant = "\"\\/\b\f\n\r\t";
        const std::size_t which = m_text.empty() ? std::string_view::npos : letters.find(m_text.front());
        if (which != std::string_view::npos) {
            value += meant[which];
            m_text.remove_prefix(1);
            return true;
        }
        unsigned code = 0;
        unsigned low = 0;
        if (!Unicode(code) || IsLowSurrogate(code)) {
            return false;
        }
        if (!IsHighSurrogate(code)) {
            AppendUtf8(value, code);
            return true;
        }
        if (m_text.empty() || m_text.front() != '\\') {
            return false;
        }
        m_text.remove_prefix(1);
        if (!Unicode(low) || !IsLowSurrogate(low)) {
            return false;
        }
        AppendUtf8(value, 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00));
        return true;
    }

    bool Unicode(unsigned& code)
    {
        constexpr std::size_t length = 5; // "u" and four digits
        if (m_text.size() < length || m_text.front() != 'u') {
            return false;
        }
        const char* const end = m_text.data() + length;
        const bool good = std::from_chars(m_text.data() + 1, end, code, 16).ptr == end;
        m_text.remove_prefix(length);
        return good;
    }

    std::string_view m_text;
};

} // namespace

AnswerLists SplitAnswers(std::string_view text)
{
    AnswerLists lists;
    for (const std::string& part : Split(text, ';')) {
        lists.push_back(part == "-" ? std::vector<std::string>() : Split(part, ','));
    }
    return lists;
}

std::optional<AnswerLists> ReadAnswersJson(std::string_view text)
{
    return AnswersReader(text).Read();
}

std::string MeantAnswer(const std::string& answer, const std::vector<std::string>& choices)
{
    if (std::find(choices.begin(), choices.end(), answer) != choices.end()) {
        return answer;
    }
    if (answer == "?") {
        return UnsureText;
    }
    std::size_t number = 0;
    const char* const end = answer.data() + answer.size();
    if (answer.size() > 1 && answer.front() == '#' &&
        std::from_chars(answer.data() + 1, end, number).ptr == end && number >= 1 &&
        number <= choices.size()) {
        return choices[number - 1];
    }
    return answer;
}

} // namespace ls
