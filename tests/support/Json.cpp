#include "support/Json.h"

#include "base/CodePage.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ls::test {

/// Parses a JSON text in one pass; throws an error as its description.
class JsonReader
{
public:
    explicit JsonReader(std::string_view text) : m_text(text) {}

    Json ReadAll()
    {
        Json value = ReadValue();
        if (Peek() != '\0') {
            Fail("text behind the value");
        }
        return value;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const
    {
        throw std::runtime_error(what + " at byte " + std::to_string(m_at));
    }

    // The next character that is no white space; '\0' at the end.
    char Peek()
    {
        m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size());
        return m_at < m_text.size() ? m_text[m_at] : '\0';
    }

    bool Accept(char c)
    {
        const bool found = Peek() == c;
        m_at += found ? 1 : 0;
        return found;
    }

    void Expect(char c)
    {
        if (!Accept(c)) {
            Fail(std::string("no ") + c);
        }
    }

    void ExpectWord(std::string_view word)
    {
        if (m_text.substr(m_at, word.size()) != word) {
            Fail("unknown word");
        }
        m_at += word.size();
    }

    Json ReadValue()
    {
        Json value;
        switch (Peek()) {
        case '{':
            ReadObject(value);
            break;
        case '[':
            ReadArray(value);
            break;
        case '"':
            value.m_kind = Json::Kind::String;
            value.m_string = ReadString();
            break;
        case 't':
        case 'f':
            value.m_kind = Json::Kind::Bool;
            value.m_bool = m_text[m_at] == 't';
            ExpectWord(value.m_bool ? "true" : "false");
            break;
        case 'n':
            ExpectWord("null");
            break;
        default:
            ReadNumber(value);
        }
        return value;
    }

    void ReadObject(Json& value)
    {
        value.m_kind = Json::Kind::Object;
        Expect('{');
        if (Accept('}')) {
            return;
        }
        do {
            Peek();
            const std::string key = ReadString();
            Expect(':');
            value.m_members[key] = ReadValue();
        } while (Accept(','));
        Expect('}');
    }

    void ReadArray(Json& value)
    {
        value.m_kind = Json::Kind::Array;
        Expect('[');
        if (Accept(']')) {
            return;
        }
        do {
            value.m_items.push_back(ReadValue());
        } while (Accept(','));
        Expect(']');
    }

    void ReadNumber(Json& value)
    {
        const std::string rest(m_text.substr(m_at, 40));
        char* end = nullptr;
        value.m_kind = Json::Kind::Number;
        value.m_number = std::strtod(rest.c_str(), &end);
        if (end == rest.c_str()) {
            Fail("no value");
        }
        m_at += static_cast<std::size_t>(end - rest.c_str());
    }

    std::string ReadString()
    {
        if (m_at >= m_text.size() || m_text[m_at] != '"') {
            Fail("no string");
        }
        ++m_at;
        std::string text;
        while (m_at < m_text.size() && m_text[m_at] != '"') {
            if (m_text[m_at] == '\\') {
                ++m_at;
                ReadEscape(text);
            } else {
                text += m_text[m_at++];
            }
        }
        if (m_at >= m_text.size()) {
            Fail("a string without end");
        }
        ++m_at;
        return text;
    }

    void ReadEscape(std::string& text)
    {
        constexpr std::string_view Letters = "\"\\/bfnrt";
        constexpr std::string_view Meanings = "\"\\/\b\f\n\r\t";
        const char letter = m_at < m_text.size() ? m_text[m_at++] : '\0';
        if (letter == 'u') {
            AppendUtf8(text, ReadCodePoint());
        } else if (const std::size_t which = Letters.find(letter); which != std::string_view::npos) {
            text += Meanings[which];
        } else {
            Fail("unknown escape");
        }
    }

    char32_t ReadCodePoint()
    {
        char32_t unit = ReadUnit();
        if (unit >= 0xD800 && unit < 0xDC00 && m_text.substr(m_at, 2) == "\\u") {
            m_at += 2;
            unit = 0x10000 + ((unit - 0xD800) << 10U) + (ReadUnit() - 0xDC00);
        }
        return unit;
    }

    char32_t ReadUnit()
    {
        const std::string digits(m_text.substr(m_at, 4));
        if (digits.size() != 4 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
            Fail("no four hexadecimal digits");
        }
        m_at += 4;
        return static_cast<char32_t>(std::stoul(digits, nullptr, 16));
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

Json Json::Parse(std::string_view text)
{
    try {
        return JsonReader(text).ReadAll();
    } catch (const std::exception& fault) {
        ADD_FAILURE() << "JSON: " << fault.what();
        return {};
    }
}

Json Json::ParseFile(const std::string& path)
{
    SCOPED_TRACE(path);
    return Parse(ReadWholeFile(path));
}

std::vector<std::string> Json::Strings() const
{
    std::vector<std::string> texts;
    for (const Json& item : m_items) {
        texts.push_back(item.String());
    }
    return texts;
}

const Json& Json::operator[](const std::string& key) const
{
    static const Json null;
    const auto found = m_members.find(key);
    if (found == m_members.end()) {
        ADD_FAILURE() << "JSON: no member " << key;
        return null;
    }
    return found->second;
}

std::string ReadWholeFile(const std::string& path)
{
    const std::ifstream file(path, std::ios::binary);
    if (!file) {
        ADD_FAILURE() << "cannot read " << path;
        return {};
    }
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

} // namespace ls::test
