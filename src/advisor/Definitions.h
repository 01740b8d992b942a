#pragma once

#include "advisor/AdvisorContext.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

class Inference;

/// A longer text of an entry is cut after the last whole line within this many characters, and "???" is
/// added.
inline constexpr std::size_t MaxEntryText = 32000;

/// Finds questions and advice texts in the definitions of topics.
class Definitions
{
public:
    Definitions(AdvisorContext& context, Inference& inference) : m_context(context), m_inference(inference) {}

    /// Moves the cursor to the start of the definitions with the question for `var`, and returns their topic.
    /// If that topic is not loaded yet, loads it first; answers of earlier dialogues may then settle the
    /// goal, which sets `advice`.
    ///
    /// Returns 0, after a message, if no question is registered for the variable. The cursor then does not
    /// move.
    Count16 GotoTopicForVar(const std::string& var, std::string& advice);

    /// Loads another topic's logic, once in a dialogue. A load that failed is tried again at the next call.
    void LoadTopicIfNeeded(Count16 topic, std::string& advice);

    /// Reads the text of the first entry after the cursor that begins with `openTag`, for example `<Q
    /// ID=AGE>` (in upper case). Its lines are trimmed and joined by CR LF. Empty if there is no such entry.
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
