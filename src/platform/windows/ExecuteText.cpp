#include "platform/windows/ExecuteText.h"

#include <algorithm>

namespace ls {

ExecuteText ReadExecuteText(std::string_view data)
{
    ExecuteText text;
    text.wide = data.size() >= 2 && data[0] != '\0' && data[1] == '\0' && data.size() != 2;
    std::size_t end = 0;
    if (text.wide) {
        while (end + 1 < data.size() && (data[end] != '\0' || data[end + 1] != '\0')) {
            end += 2;
        }
    } else {
        end = std::min(data.find('\0'), data.size());
    }
    text.bytes = data.substr(0, end);
    return text;
}

} // namespace ls
