#include "browser/ReferralAddress.h"

#include "base/Text.h"
#include "browser/WebReferral.h"

#include <cstddef>

namespace ls {

namespace {

// Whether the address begins with letters, a colon and two slashes, such as "http://" or "HTTP://".
bool HasScheme(const std::string& url)
{
    const std::size_t colon = url.find("://");
    if (colon == std::string::npos || colon == 0) {
        return false;
    }
    const std::string scheme = UpperCase(url.substr(0, colon));
    return scheme.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos;
}

} // namespace

std::string AddressToOpen(const std::string& bookUrl)
{
    std::string address = HasScheme(bookUrl) ? bookUrl : SiteOf(bookUrl);
    for (std::size_t at = address.find('"'); at != std::string::npos; at = address.find('"', at)) {
        address.replace(at, 1, "%22");
    }
    return address;
}

} // namespace ls
