#pragma once

#include "advisor/AdvisorContext.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

class Inference;

/// The text of an entry is cut at the last whole line within this many characters, and "???" added.
inline constexpr std::size_t MaxEntryText = 32000;

/// Finds the questions and the advice texts in the definitions of the topics.
class Definitions
{
public:
    Definitions(AdvisorContext& context, Inference& inference) : m_context(context), m_inference(inference) {}

    /// Positions the cursor at the start of the definitions that hold the question for `var`, and returns
    /// their topic. A topic that was not loaded yet is loaded first, and answers from earlier dialogues may
    /// then settle the goal: `advice` tells. Returns 0 after a message when no question is registered for the
    /// variable; the cursor stays where it is.
    Count16 GotoTopicForVar(const std::string& var, std::string& advice);

    /// Loads a further topic's logic, once in a dialogue. A load that failed is tried again the next time.
    void LoadTopicIfNeeded(Count16 topic, std::string& advice);

    /// Reads the text of the entry that `openTag` opens, e.g. `<Q ID=AGE>` (in upper case), searching from
    /// the cursor's position on. Its lines are trimmed and joined by CR LF. Empty when there is no such
    /// entry.
    std::string ReadTaggedText(const std::string& openTag);

private:
    FileError SeekTopic(Count16 topic);
    FileError SkipToDefinitions();
    bool FindTag(const std::string& openTag, std::string_view& piece);
    bool ReadPiece(std::string_view& line);
    void ReadFailed(const FileError& error, std::string_view action);

    AdvisorContext& m_context;
    Inference& m_inference;
};

} // namespace ls
