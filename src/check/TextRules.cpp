#include "check/TextRules.h"

#include "base/CodePage.h"
#include "base/Text.h"
#include "render/text/Markup.h"
#include "render/text/WrapSegment.h"

#include <algorithm>

namespace ls {

namespace {

constexpr int ExportWidth = 70;

bool IsUnassigned(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

bool ReadsAsUtf8(std::string_view line)
{
    for (std::size_t at = 0; at < line.size();) {
        if (NextUtf8(line, at) == 0xFFFD) {
            return false;
        }
    }
    return true;
}

// The export recognises a heading by its first four characters.
bool IsHeading(std::string_view line)
{
    return line.size() > 4 && BeginsUpper(line, "<H") && line[2] >= '1' && line[2] <= '4' && line[3] == '>';
}

} // namespace

void TextRules::BeginTopic()
{
    m_open.clear();
    m_toldUtf8 = false;
}

void TextRules::CheckMarkup(std::string_view line, int number)
{
    line = TrimRight(line);
    if (IsHeading(line)) {
        CheckHeading(line, number);
    }
    MarkupReader reader(line);
    while (!reader.AtEnd()) {
        const MarkupPiece piece = reader.Next();
        if (piece.kind == MarkupPiece::Kind::Tag) {
            TakeTag(piece.name, number);
        } else if (piece.kind == MarkupPiece::Kind::Entity && EntityCharacter(piece.name) == '?') {
            m_findings.Warning("unknown-entity", number,
                               "The reader sees \"?\" instead of " +
                                   Quoted("&" + std::string(piece.name) + ";") +
                                   ": only &LT; &GT; and &AMP; are known, in capital letters.");
        }
    }
}

void TextRules::TakeTag(std::string_view name, int number)
{
    if (!IsKnownTag(name)) {
        const std::string tag = Quoted("<" + std::string(name) + ">");
        if (IsKnownTag(UpperCase(name))) {
            m_findings.Warning(
                "tag-case", number,
                "The tag " + tag +
                    " does nothing for the reader, since it is not written in capital letters: "
                    "write it so.");
        } else {
            m_findings.Warning(
                "unknown-tag", number,
                "The tag " + tag +
                    " is unknown, so the reader sees nothing of it: write &LT; for a \"<\" that "
                    "is text, or remove it.");
        }
        return;
    }
    if (name.front() != '/') {
        m_open.push_back({std::string(name), number});
        return;
    }
    name.remove_prefix(1);
    const bool closesBold = name == "H1" || name == "H2";
    m_open.erase(std::remove_if(m_open.begin(), m_open.end(),
                                [&](const OpenTag& open) {
                                    return open.name == name || (closesBold && open.name == "B") ||
                                           (name == "H1" && open.name == "U") ||
                                           (name == "H3" && open.name == "I");
                                }),
                 m_open.end());
}

void TextRules::CheckHeading(std::string_view line, int number)
{
    LineRemainder rest(line);
    std::string segment;
    WrapSegment(rest, ExportWidth, 0, segment);
    if (!rest.Blank()) {
        m_findings.Warning(
            "long-heading", number,
            "The heading is longer than 70 characters, so a reader of the exported page gets it cut: "
            "shorten it.");
    }
}

void TextRules::EndShown()
{
    for (const OpenTag& open : m_open) {
        m_findings.Warning(
            "not-closed", open.line,
            "The tag \"<" + open.name +
                ">\" is not closed, so the reader sees all that follows in this style: add \"</" + open.name +
                ">\".");
    }
    m_open.clear();
}

void TextRules::TakeHighBytes(std::string_view line, int number)
{
    if (!ReadsAsUtf8(line)) {
        CheckUnassigned(line, number);
    } else if (!m_toldUtf8) {
        m_toldUtf8 = true;
        m_findings.Warning(
            "reads-as-utf8", number,
            "The text reads as UTF-8, so the reader sees two or three odd characters for each letter "
            "with an accent: convert the book with lsbook convert.");
    }
}

void TextRules::CheckUnassigned(std::string_view line, int number)
{
    const auto found = std::find_if(line.begin(), line.end(), IsUnassigned);
    if (found == line.end()) {
        return;
    }
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(*found);
    m_findings.Warning("unassigned-byte", number,
                       std::string("The byte ") + digits[byte / 16U] + digits[byte % 16U] +
                           " stands for no character, so the reader sees a gap or a box: replace it.");
}

void TextRules::TakeLoneLf(int number)
{
    if (!m_toldLf) {
        m_toldLf = true;
        m_findings.Warning(
            "unix-line-ends", number,
            "A LF without a CR ends no line of a book, so the reader sees two lines as one and "
            "misses titles behind it: convert the book with lsbook convert.");
    }
}

} // namespace ls
