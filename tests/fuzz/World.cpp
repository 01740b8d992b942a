#include "World.h"

#include "base/CodePage.h"
#include "book/BookLoader.h"

#include <algorithm>

namespace ls::fuzz {

Reply ChoosingMessages::ShowBox(const std::string& text, Icon /*icon*/, Buttons buttons,
                                const std::string& title)
{
    RequireUtf8(text);
    RequireUtf8(title);
    texts.push_back(text);
    switch (buttons) {
    case Buttons::Ok:
        return Reply::Ok;
    case Buttons::OkCancel:
        return m_input->Choose(2) == 0 ? Reply::Ok : Reply::Cancel;
    case Buttons::YesNo:
        return m_input->Choose(2) == 0 ? Reply::Yes : Reply::No;
    case Buttons::YesNoCancel:
        break;
    }
    constexpr Reply Replies[] = {Reply::Yes, Reply::No, Reply::Cancel};
    return Replies[m_input->Choose(3)];
}

std::optional<std::string> ChoosingMessages::ShowInputBox(const std::string& prompt, const std::string& title,
                                                          const std::string& initial)
{
    RequireUtf8(prompt);
    RequireUtf8(title);
    RequireUtf8(initial);
    return m_input->Choose(2) == 0 ? std::optional<std::string>(initial) : std::nullopt;
}

bool World::OpenBookOf(Book& book, const std::string& bytes, const std::string& path)
{
    files[path] = bytes;
    book.BookPath = path;
    return OpenBook(book, Get()) && !book.IsPlainText() && ScanBook(book, Get());
}

std::vector<SourceLine> LinesOf(const std::string& bytes)
{
    std::vector<SourceLine> lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\r', at), bytes.size());
        lines.push_back({at + 1, bytes.substr(at, end - at)});
        at = end + (end + 1 < bytes.size() && bytes[end + 1] == '\n' ? 2 : 1);
    }
    return lines;
}

void RequireUtf8(std::string_view text)
{
    std::string again;
    for (std::size_t at = 0; at < text.size();) {
        AppendUtf8(again, NextUtf8(text, at));
    }
    RequireEqual(text, again, "what is shown is UTF-8");
}

std::string WithoutBlanks(std::string_view text)
{
    std::string rest;
    for (const char c : text) {
        if (c != ' ') {
            rest += c;
        }
    }
    return rest;
}

std::string AsBook(const std::string& text)
{
    return text.starts_with("LODESTAR BOOK V") ? text : HeaderLine5 + text;
}

} // namespace ls::fuzz
