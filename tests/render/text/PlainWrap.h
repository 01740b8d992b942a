#pragma once

#include <string>

namespace ls::test {

/// The wrap rule step by step, on copies and not fast. Tests compare `WrapSegment` with it. Cuts a segment
/// off the front of `line`.
inline std::string PlainWrapSegment(std::string& line, int width, int indent)
{
    const auto take = [&line](std::size_t count, std::size_t drop) {
        const std::string front = line.substr(0, count);
        line = line.size() > count + drop ? line.substr(count + drop) : std::string();
        return front;
    };
    if (!line.empty() && line[0] == '\t') {
        line.replace(0, 1, 5, ' ');
    }
    const std::string hang(static_cast<std::size_t>(indent), ' ');
    if (static_cast<int>(line.size()) + indent <= width) {
        return hang + take(line.size(), 0);
    }
    int col = indent;
    std::size_t lastSpace = 0;
    bool inTag = false;
    bool inEntity = false;
    bool breaks = false;
    for (std::size_t i = 1; i <= line.size() && !breaks; ++i) {
        const char c = line[i - 1];
        if (c == '&') {
            breaks = col >= width;
            inEntity = inEntity || !breaks;
        } else if (c == ';' && inEntity) {
            inEntity = false;
            ++col;
        } else if (c == '<') {
            inTag = true;
        } else if (c == '>' && inTag) {
            inTag = false;
        } else if (!inTag && !inEntity) {
            lastSpace = c == ' ' ? i : lastSpace;
            breaks = ++col > width;
        }
    }
    if (!breaks) {
        return hang + take(line.size(), 0);
    }
    if (lastSpace == 0) {
        return hang + take(static_cast<std::size_t>(width), 0);
    }
    const std::string segment = hang + take(lastSpace - 1, 1);
    return segment.empty() ? take(line.size(), 0) : segment;
}

} // namespace ls::test
