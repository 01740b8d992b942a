#include "platform/linux/FileDescriptor.h"

#include <cerrno>

#include <unistd.h>

namespace ls {

int FileDescriptor::Close()
{
    const int number = std::exchange(m_number, -1);
    // An interrupted close has still closed the descriptor. A second close could hit a file opened meanwhile.
    return number < 0 || ::close(number) == 0 || errno == EINTR ? 0 : errno;
}

} // namespace ls
