#include "base/CodePage.h"
#include "check/BlockRules.h"

namespace ls {

namespace {

using Kind = BlockCommand::Kind;

bool HasBlank(const std::string& text)
{
    return text.find(' ') != std::string::npos;
}

void CheckWord(const BlockCommand& command, Findings& findings)
{
    if (command.kind == Kind::Unknown) {
        findings.Error(
            "unknown-command", command.line,
            Quoted(command.text) +
                " is no rule and no command, so the reader gets an error box instead of a question: "
                "begin it with TARGET, ASSUME or DEFINE, give it a \"=\", or make it a comment with "
                "\"*\".");
    }
}

void CheckDefine(const BlockCommand& command, Findings& findings)
{
    if (command.kind != Kind::Define) {
        return;
    }
    if (!command.title.empty() && command.var.empty()) {
        findings.Error(
            "define-syntax", command.line,
            "The line names no variable before the \"@\", so it does nothing for the reader: write "
            "it as DEFINE VARIABLE@TITLE, or remove it.");
    } else if (command.title.empty()) {
        findings.Error("define-syntax", command.line,
                       "The line is not of the form DEFINE VARIABLE@TITLE, so the reader gets an error box "
                       "instead of a question: name the variable, and the topic behind \"@\".");
    }
}

void CheckAssume(const BlockCommand& command, Findings& findings)
{
    if (command.kind != Kind::Assume || command.stray.empty()) {
        return;
    }
    if (command.stray == " ") {
        findings.Error(
            "stray-text", command.line,
            "The blanks of an ASSUME become part of the rules, which never hold for any reader then: "
            "write its conditions without any, as A(X)B(Y).");
    } else {
        findings.Error("stray-text", command.line,
                       "The rules behind this ASSUME never hold for any reader because " +
                           (command.stray == "\t" ? std::string("a TAB") : Quoted(command.stray)) +
                           " stands among its conditions: write them one behind the other, as A(X)B(Y).");
    }
}

void CheckBlanks(const BlockCommand& command, Findings& findings)
{
    const std::string& name = command.kind == Kind::Define ? command.var : command.argument;
    if ((command.kind == Kind::Define || command.kind == Kind::Target) && HasBlank(name)) {
        findings.Warning("blanks-in-name", command.line,
                         "The blank in " + Quoted(name) +
                             " is a part of the name, and rules have none, so the line does nothing for the "
                             "reader: remove it.");
    }
}

void CheckTargets(const CheckedBlock& block, Findings& findings)
{
    const BlockCommand* const counts = block.TargetCommand();
    for (const BlockCommand& command : block.commands) {
        if (command.kind == Kind::Target && &command != counts) {
            findings.Warning(
                "target-repeated", command.line,
                "A later TARGET line replaces this one, so the reader's dialogue never has the goal " +
                    Quoted(command.argument) + ": keep one of them.");
        }
    }
}

} // namespace

void CheckCommands(const RuleBase& base, Findings& findings)
{
    for (const BlockCommand& command : base.Own().commands) {
        CheckWord(command, findings);
        CheckDefine(command, findings);
        CheckAssume(command, findings);
        CheckBlanks(command, findings);
    }
    CheckTargets(base.Own(), findings);
}

} // namespace ls
