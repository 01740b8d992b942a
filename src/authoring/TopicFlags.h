#pragma once

namespace ls {

/// What the topic forms report to the main window when they close.
struct TopicFlags
{
    bool TopicsRearranged = false; ///< topics were moved
    bool TopicListStale = false;   ///< topics were removed or restored: refill the list
};

} // namespace ls
