#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace ls {

/// Writes JSON to a stream, value by value, in the order of the calls.
///
/// The outermost container, and a list right inside it, have a line for each element; whatever lies deeper
/// stands in one line, so that a list of records reads, and compares, line by line. Control characters are
/// escaped; all other characters stand as UTF-8.
class JsonWriter
{
public:
    explicit JsonWriter(std::ostream& stream) : m_stream(&stream) {}

    JsonWriter& BeginObject() { return Begin('{'); }
    JsonWriter& EndObject() { return End('}'); }
    JsonWriter& BeginArray() { return Begin('['); }
    JsonWriter& EndArray() { return End(']'); }

    /// The name of the value that follows, in an object.
    JsonWriter& Key(std::string_view name);

    /// A text in UTF-8; bytes that are not UTF-8 become U+FFFD.
    JsonWriter& String(std::string_view utf8);

    /// Book text: its bytes read as Windows-1252.
    JsonWriter& BookText(std::string_view bytes);

    JsonWriter& Number(std::int64_t number);

    /// In as few digits as tell it from every other number of its type: 5.3, not 5.30000019.
    JsonWriter& Number(float number);

    JsonWriter& Bool(bool value);
    JsonWriter& Null();

    /// Whether what was begun has been ended.
    [[nodiscard]] bool Complete() const { return m_open.empty(); }

private:
    struct Container
    {
        bool lines = false; ///< each element begins a line
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
