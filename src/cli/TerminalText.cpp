#include "cli/TerminalText.h"

#include "base/CodePage.h"

namespace ls {

namespace {

constexpr char32_t FirstPicture = 0x2400; // of NUL; the others follow in order
constexpr char32_t DeletePicture = 0x2421;
constexpr char32_t Replacement = 0xFFFD;

char32_t Visible(char32_t c, bool keepNewlines)
{
    if (c == U'\t' || (c == U'\n' && keepNewlines)) {
        return c;
    }
    if (c < 0x20) {
        return FirstPicture + c;
    }
    if (c == 0x7F) {
        return DeletePicture;
    }
    return c > 0x7F && c < 0xA0 ? Replacement : c;
}

std::string Convert(std::string_view utf8, bool keepNewlines)
{
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        AppendUtf8(text, Visible(NextUtf8(utf8, at), keepNewlines));
    }
    return text;
}

} // namespace

std::string ForStream(std::string_view utf8, bool terminal)
{
    return terminal ? Convert(utf8, true) : std::string(utf8);
}

std::string LineForStream(std::string_view utf8, bool terminal)
{
    return terminal ? Convert(utf8, false) : std::string(utf8);
}

std::string WithNewlines(std::string_view crLfText)
{
    std::string text;
    text.reserve(crLfText.size());
    for (std::size_t at = 0; at < crLfText.size(); ++at) {
        const bool lineEnd = crLfText[at] == '\r' && at + 1 < crLfText.size() && crLfText[at + 1] == '\n';
        if (!lineEnd) {
            text += crLfText[at];
        }
    }
    return text;
}

} // namespace ls
