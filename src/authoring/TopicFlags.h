#pragma once

namespace ls {

/// What the forms on topics tell the main window when they close.
struct TopicFlags
{
    bool TopicsRearranged = false; ///< a move was done
    bool TopicListStale = false;   ///< topics were removed or restored: the list is to be refilled
};

} // namespace ls
