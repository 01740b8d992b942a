#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace ls {

/// Writes JSON to a stream, value by value, in the order of the calls.
///
/// The outermost container, and a list directly inside it, have one line for each element; deeper values
/// share a line. So a list of records is read and compared line by line. Control characters are escaped; all
/// others are UTF-8.
class JsonWriter
{
public:
    explicit JsonWriter(std::ostream& stream) : m_stream(&stream) {}

    JsonWriter& BeginObject() { return Begin('{'); }
    JsonWriter& EndObject() { return End('}'); }
    JsonWriter& BeginArray() { return Begin('['); }
    JsonWriter& EndArray() { return End(']'); }

    /// Writes the name of the next value of an object.
    JsonWriter& Key(std::string_view name);

    /// Writes a text in UTF-8; bytes that are not UTF-8 become U+FFFD.
    JsonWriter& String(std::string_view utf8);

    /// Writes book text (Windows-1252).
    JsonWriter& BookText(std::string_view bytes);

    JsonWriter& Number(std::int64_t number);

    /// Uses the fewest digits that identify the number in its type: 5.3, not 5.30000019.
    JsonWriter& Number(float number);

    JsonWriter& Bool(bool value);
    JsonWriter& Null();

    /// Whether everything that was begun is ended.
    [[nodiscard]] bool Complete() const { return m_open.empty(); }

private:
    struct Container
    {
        bool lines = false; ///< each element begins a new line
        bool empty = true;
    };

    JsonWriter& Begin(char bracket);
    JsonWriter& End(char bracket);
    void BeginElement();
    void BeginLine(std::size_t depth);
    void WriteString(std::string_view utf8);
    void WriteCharacters(std::string_view utf8);

    std::ostream* m_stream;
    std::vector<Container> m_open;
    bool m_afterKey = false;
};

} // namespace ls
