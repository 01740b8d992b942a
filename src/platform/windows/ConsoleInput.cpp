#include "platform/windows/ConsoleInput.h"

#include "platform/windows/WideText.h"

#include <algorithm>

#include <windows.h>

namespace ls {

namespace {

constexpr DWORD PieceSize = 4096;
constexpr wchar_t CtrlZ = 0x1A;

// Reads the next piece of the line. Empty at the end of the input and after an interruption.
std::wstring ReadPiece()
{
    std::wstring piece(PieceSize, L'\0');
    DWORD count = 0;
    if (::ReadConsoleW(::GetStdHandle(STD_INPUT_HANDLE), piece.data(), PieceSize, &count, nullptr) == 0) {
        count = 0;
    }
    piece.resize(count);
    return piece;
}

} // namespace

ConsoleInput::int_type ConsoleInput::underflow()
{
    while (!m_ended) {
        std::wstring text = ReadPiece();
        if (text.empty() || text.front() == CtrlZ) {
            m_ended = true;
            break;
        }
        text.insert(0, m_half);
        m_half.clear();
        if (text.back() >= 0xD800 && text.back() <= 0xDBFF) {
            m_half = text.back();
            text.pop_back();
        }
        text.erase(std::remove(text.begin(), text.end(), L'\r'), text.end());
        m_line = FromWide(text);
        if (!m_line.empty()) {
            setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
            return traits_type::to_int_type(m_line.front());
        }
    }
    return traits_type::eof();
}

} // namespace ls
