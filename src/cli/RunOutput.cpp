#include "cli/RunOutput.h"

#include "base/Processes.h"
#include "cli/CliEnvironment.h"
#include "cli/JsonWriter.h"
#include "render/text/RunList.h"

namespace ls {

void WriteRun(JsonWriter& json, const Run& run)
{
    json.BeginObject();
    json.Key("text").BookText(run.text);
    json.Key("bold").Bool(run.bold);
    json.Key("italic").Bool(run.italic);
    json.Key("underline").Bool(run.underline);
    json.Key("colour").BeginArray();
    json.Number(std::int64_t{run.colour.red});
    json.Number(std::int64_t{run.colour.green});
    json.Number(std::int64_t{run.colour.blue});
    json.EndArray();
    json.Key("end_row").Bool(run.endRow);
    json.EndObject();
}

bool ShowsStyles(const CliEnvironment& environment)
{
    Processes& processes = environment.processes;
    return environment.outIsTerminal && processes.Environment("NO_COLOR").empty() &&
           processes.Environment("TERM") != "dumb";
}

} // namespace ls
