#include "FaultRow.h"

namespace ls::test {

std::vector<FaultRow> AllRows()
{
    std::vector<FaultRow> all;
    for (std::vector<FaultRow> rows : {OpenRows(), TopicRows(), SaveRows(), OutputRows(), SettingsRows()}) {
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

} // namespace ls::test
