#include "base/CodePage.h"
#include "check/BlockRules.h"

namespace ls {

namespace {

std::string Tag(const BlockEntry& entry)
{
    return entry.question ? "Q" : "AV";
}

void CheckClosed(const BlockEntry& entry, Findings& findings)
{
    const std::string closing = "</" + Tag(entry) + ">";
    if (!entry.closed && entry.closedInLowerCase) {
        findings.Warning("tag-case", entry.line,
                         "Only \"" + closing +
                             "\" in capital letters closes this entry, so the reader sees all "
                             "that follows it, too: write it so.");
    } else if (!entry.closed) {
        findings.Warning("not-closed", entry.line,
                         "The entry is not closed, so the reader sees all that follows it, too: add \"" +
                             closing + "\".");
    }
}

void CheckPlace(const BlockEntry& entry, Findings& findings)
{
    if (!entry.question || entry.registered) {
        return;
    }
    const std::string var = FromBook(entry.id);
    if (!entry.atStart) {
        findings.Warning(
            "tag-place", entry.line,
            "The question for " + var +
                " does not begin its line, so the reader is told that it cannot be found: begin a "
                "new line with it.");
    } else {
        findings.Warning(
            "tag-place", entry.line,
            "The question for " + var +
                " stands behind the end of the definitions, so the reader is told that it cannot be "
                "found: move it before the first line that holds \"</DEFINITIONS>\".");
    }
}

void CheckName(const BlockEntry& entry, Findings& findings)
{
    if (entry.id.find(' ') != std::string::npos) {
        findings.Warning("blanks-in-name", entry.line,
                         "The blank in " + Quoted(entry.id) +
                             " is a part of the name, and rules have none, so the reader never comes to this "
                             "entry: remove it.");
    }
}

void CheckLength(const BlockEntry& entry, Findings& findings)
{
    if (entry.tooLong) {
        findings.Error(
            "text-too-long", entry.line,
            "The text of " + FromBook(entry.id) +
                " is longer than 32,000 characters, so the reader sees \"???\" instead of its end: "
                "shorten it.");
    }
}

} // namespace

void CheckEntries(const RuleBase& base, Findings& findings)
{
    for (const BlockEntry& entry : base.Own().entries) {
        CheckClosed(entry, findings);
        CheckPlace(entry, findings);
        CheckName(entry, findings);
        CheckLength(entry, findings);
    }
}

} // namespace ls
