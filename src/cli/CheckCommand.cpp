#include "base/CodePage.h"
#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

#include <algorithm>
#include <vector>

namespace ls {

namespace {

constexpr std::string_view Strict = "--strict";

void WriteFinding(JsonWriter& json, const Finding& finding)
{
    json.BeginObject();
    json.Key("file").String(finding.file);
    json.Key("line").Number(std::int64_t{finding.line});
    json.Key("topic").String(finding.topic);
    json.Key("severity").String(SeverityWord(finding.severity));
    json.Key("rule").String(finding.rule);
    json.Key("text").String(finding.text);
    json.EndObject();
}

void WriteFindings(CommandContext& context, const std::vector<Finding>& findings)
{
    if (context.Json()) {
        context.WriteJson([&findings](JsonWriter& json) {
            json.Key("findings").BeginArray();
            for (const Finding& finding : findings) {
                WriteFinding(json, finding);
            }
            json.EndArray();
        });
        return;
    }
    for (const Finding& finding : findings) {
        context.Line(finding.file + ":" + std::to_string(finding.line) + ": " +
                     SeverityWord(finding.severity) + ": " + finding.rule + ": " + finding.text);
    }
}

// Adds the findings of one book. False when it is no book or cannot be read; that was reported.
bool CheckOne(CommandContext& context, const std::string& path, std::vector<Finding>& findings)
{
    if (context.OpenTheBook(path) != Opening::Done) {
        return false;
    }
    FileError error;
    const std::vector<Finding> found =
        CheckBook(context.TheBook(), context.TheSeams(), &context.TheProgress(), error);
    context.TheProgress().Erase();
    findings.insert(findings.end(), found.begin(), found.end());
    return error.Ok();
}

Status Run(CommandContext& context)
{
    std::vector<Finding> findings;
    bool whole = true;
    for (const std::string& path : context.Args().Operands()) {
        whole = CheckOne(context, path, findings) && whole;
    }
    WriteFindings(context, findings);
    const bool strict = context.Args().Has(Strict);
    const bool faulty = std::any_of(findings.begin(), findings.end(), [strict](const Finding& finding) {
        return strict || finding.severity == Severity::Error;
    });
    return faulty || !whole ? Status::Fault : Status::Done;
}

} // namespace

CommandSpec CheckCommand()
{
    return {
        "check",
        "BOOK...",
        1,
        1000,
        "Finds faults and traps in text, references and rules",
        "Each finding is a line \"book:line: error|warning: rule: text\". An error does not work as it is\n"
        "written; a warning works, but perhaps not as it was meant. The status is 1 when there are errors.",
        {{Strict, "", "end with status 1 for warnings, too"}, JsonOption},
        Run};
}

} // namespace ls
