#include "CliFixture.h"

#include "cli/CliEnvironment.h"
#include "cli/RunLsbook.h"
#include "support/TestSeams.h"

#include <sstream>

namespace ls::test {

int CliFixture::Run(const std::vector<std::string>& arguments)
{
    std::istringstream inStream(in);
    std::ostringstream outStream;
    std::ostringstream errStream;
    CliEnvironment environment{inStream,  outStream,    errStream,     files,         processes,
                               UnixPaths, inIsTerminal, outIsTerminal, errIsTerminal, columns};
    const int status = RunLsbook(arguments, environment);
    out = outStream.str();
    err = errStream.str();
    return status;
}

std::vector<Json> CliFixture::Asked(const std::vector<Json>& entries)
{
    return entries;
}

std::string SmallBook()
{
    return CrLf({
        "LODESTAR BOOK V5.3 /AUTHOR=\"Ren\xE9\" /URL=\"http://127.0.0.1/\" /POST=\"yes\"",
        "[Start]",
        "<H1>Caf\xE9</H1> at the <B>weir</B>",
        "10 &LT; 20",
        "<XREF TOPIC=\"Caf\xE9\">",
        "The <I>first</I> note",
        "",
        "and its end</XREF>",
        "[Caf\xE9]",
        "- one two three four five six",
        "<XREF TOPIC=Start></XREF>",
        "<XREF TOPIC=Caf\xE9>itself</XREF>",
        "[Advice]",
        "Ask me.",
        "<IXML>",
        "<LOGIC>",
        "<AV ID=GO></AV>",
        "</LOGIC>",
        "</IXML>",
    });
}

} // namespace ls::test
