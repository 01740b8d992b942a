#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ls::test {

/// A value of a JSON text, for the tests' data files.
///
/// Access to a missing member or element fails the test and gives null.
class Json
{
public:
    enum class Kind
    {
        Null,
        Bool,
        Number,
        String,
        Array,
        Object
    };

    /// Parses a whole text. An error fails the test, names its place, and gives null.
    static Json Parse(std::string_view text);
    static Json ParseFile(const std::string& path);

    [[nodiscard]] Kind GetKind() const { return m_kind; }
    [[nodiscard]] bool IsNull() const { return m_kind == Kind::Null; }
    [[nodiscard]] bool Bool() const { return m_bool; }
    [[nodiscard]] double Number() const { return m_number; }
    [[nodiscard]] int Int() const { return static_cast<int>(m_number); }
    [[nodiscard]] const std::string& String() const { return m_string; } ///< UTF-8

    /// The elements of an array; empty for other values.
    [[nodiscard]] const std::vector<Json>& Items() const { return m_items; }
    /// The elements of an array as texts.
    [[nodiscard]] std::vector<std::string> Strings() const;

    [[nodiscard]] bool Has(const std::string& key) const { return m_members.count(key) != 0; }
    const Json& operator[](const std::string& key) const;

private:
    friend class JsonReader;

    Kind m_kind = Kind::Null;
    bool m_bool = false;
    double m_number = 0;
    std::string m_string;
    std::vector<Json> m_items;
    std::map<std::string, Json> m_members;
};

/// The bytes of a file; a file that cannot be read fails the test.
[[nodiscard]] std::string ReadWholeFile(const std::string& path);

} // namespace ls::test
